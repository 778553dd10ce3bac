pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// The dashboard: the last smart scan on the left, the disk and one card per channel on the right.
Item {
    id: root
    required property AppModel appModel
    required property channelInfo info
    readonly property HomeModel home: appModel.home
    readonly property homeSnapshot snapshot: home.snapshot

    Component.onCompleted: home.refreshDisk()

    Row {
        anchors.fill: parent
        anchors.margins: 24
        spacing: 24

        Column {
            id: left
            width: (parent.width - parent.spacing) * 0.55
            height: parent.height
            spacing: 20

            HomeVisor {
                width: parent.width
                home: root.home
                snapshot: root.snapshot
            }
            HomeScanPanel {
                width: parent.width
                home: root.home
                snapshot: root.snapshot
            }
        }
        HomeDiskPanel {
            width: parent.width - left.width - parent.spacing
            height: parent.height
            appModel: root.appModel
            home: root.home
        }
    }
}
