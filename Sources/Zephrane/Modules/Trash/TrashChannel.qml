// Not Bound: Qt 6.4 refuses to let a Loader instantiate bound components declared beside it.
import QtQuick
import Zephrane

// The trash channel: the shared phase screens over the trash model, or the no-access panel while
// the trash can't be read. It reads the trash each time it appears, when access changes and when
// the program comes back to the front.
Item {
    id: root

    required property AppModel appModel
    required property channelInfo info
    readonly property TrashModel trash: appModel.trash
    readonly property bool denied: trash.access === "denied"

    Component.onCompleted: trash.refreshOnAppearing()

    Connections {
        target: FullDiskAccessMonitor
        function onIsGrantedChanged() { root.trash.rescan() }
    }
    // Drives are not watched: one plugged in while the program was in the background shows when
    // it comes back.
    Connections {
        target: Qt.application
        function onStateChanged() {
            if (Qt.application.state === Qt.ApplicationActive)
                root.trash.refreshInPlace()
        }
    }

    ModulePhaseView {
        objectName: "trashPhaseView"
        anchors.fill: parent
        visible: !root.denied
        enabled: visible
        focus: visible
        model: root.trash
        channelTitle: root.info.title
        idleMessage: qsTrId("trash.idle.message")
        emptyMessage: qsTrId("trash.empty.message")
        results: trashResults
    }

    Loader {
        anchors.fill: parent
        active: root.denied
        focus: active
        sourceComponent: noAccess
    }

    Component {
        id: trashResults
        TrashResults { model: root.trash }
    }
    Component {
        id: noAccess
        TrashNoAccessPanel { model: root.trash }
    }
}
