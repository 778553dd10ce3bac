pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Zephrane

// The disk-access grant and, while it is missing, the key to where it is given. Watches the grant
// while it is on show.
RowLayout {
    id: root

    spacing: 16
    implicitHeight: 40

    Component.onCompleted: FullDiskAccessMonitor.watch()
    Component.onDestruction: FullDiskAccessMonitor.stopWatching()

    Text {
        Layout.fillWidth: true
        text: qsTrId("settings.disk.title")
        color: PainelTheme.text
        font.family: PainelTheme.sansFamily
        font.pixelSize: 13
        elide: Text.ElideRight
    }

    PainelButton {
        visible: !FullDiskAccessMonitor.isGranted
        text: qsTrId("fda.action.openSettings")
        onClicked: FullDiskAccessMonitor.openSettings()
    }

    DiskAccessStatus {
        granted: FullDiskAccessMonitor.isGranted
    }
}
