pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// The trash could not be listed: say so, and lead to where access is given. The grant is watched
// while this shows, so the trash is read as soon as it comes.
Item {
    id: root

    required property TrashModel model

    Component.onCompleted: FullDiskAccessMonitor.watch()
    Component.onDestruction: FullDiskAccessMonitor.stopWatching()

    Column {
        anchors.fill: parent
        anchors.margins: 32
        spacing: 16

        PhaseHeader { text: qsTrId("trash.noAccess.status"); tone: PhaseHeader.Muted }
        Text {
            objectName: "noAccessTitle"
            width: parent.width
            text: qsTrId("trash.noAccess.title")
            color: PainelTheme.text
            font.family: PainelTheme.sansFamily
            font.pixelSize: 26
            font.weight: Font.DemiBold
            wrapMode: Text.WordWrap
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Text {
            width: Math.min(parent.width, 560)
            text: qsTrId("trash.noAccess.body")
            color: PainelTheme.muted
            font.family: PainelTheme.sansFamily
            font.pixelSize: 14
            lineHeight: 1.3
            wrapMode: Text.WordWrap
        }
        Row {
            spacing: 12
            topPadding: 8
            PainelButton {
                objectName: "openSettingsKey"
                text: qsTrId("fda.action.openSettings")
                kind: PainelButtonKind.Accent
                focus: true
                onClicked: FullDiskAccessMonitor.openSettings()
            }
            PainelButton {
                objectName: "retryKey"
                text: qsTrId("trash.noAccess.retry")
                onClicked: root.model.rescan()
            }
        }
    }
}
