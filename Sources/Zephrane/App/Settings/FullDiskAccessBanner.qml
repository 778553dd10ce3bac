pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Zephrane

// Above the channels that need the disk-access grant, while it is missing.
Rectangle {
    id: root

    visible: !FullDiskAccessMonitor.isGranted
    implicitHeight: visible ? content.implicitHeight + 24 : 0
    radius: 10
    color: PainelTheme.panel
    border.width: 1
    border.color: PainelTheme.warn

    Accessible.role: Accessible.AlertMessage
    Accessible.name: qsTrId("fda.banner.title")

    Component.onCompleted: FullDiskAccessMonitor.watch()
    Component.onDestruction: FullDiskAccessMonitor.stopWatching()

    RowLayout {
        id: content
        anchors.fill: parent
        anchors.margins: 12
        anchors.leftMargin: 16
        spacing: 16

        Rectangle {
            Layout.alignment: Qt.AlignTop
            Layout.topMargin: 5
            width: 8
            height: 8
            radius: 4
            color: PainelTheme.warn
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 4
            Text {
                Layout.fillWidth: true
                text: qsTrId("fda.banner.title")
                color: PainelTheme.text
                font.family: PainelTheme.sansFamily
                font.pixelSize: 13
                font.weight: Font.DemiBold
                wrapMode: Text.WordWrap
            }
            Text {
                Layout.fillWidth: true
                text: qsTrId("fda.banner.body")
                color: PainelTheme.muted
                font.family: PainelTheme.sansFamily
                font.pixelSize: 12
                wrapMode: Text.WordWrap
            }
        }

        PainelButton {
            text: qsTrId("fda.action.check")
            onClicked: FullDiskAccessMonitor.check()
        }
        PainelButton {
            kind: PainelButtonKind.Accent
            text: qsTrId("fda.action.openSettings")
            onClicked: FullDiskAccessMonitor.openSettings()
        }
    }
}
