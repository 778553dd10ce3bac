// Not Bound: Qt 6.4 refuses to let a Loader instantiate bound components declared beside it.
import QtQuick
import Zephrane

// The apps channel: the shared phase screens over the uninstaller, with the list and the detail
// pane in the middle. It scans by itself on the first visit.
Item {
    id: root

    required property AppModel appModel
    required property channelInfo info
    readonly property UninstallerModel apps: appModel.uninstaller

    Component.onCompleted: apps.scanOnFirstVisit()

    ModulePhaseView {
        anchors.fill: parent
        model: root.apps
        channelTitle: root.info.title
        idleMessage: qsTrId("apps.idle.message")
        emptyMessage: qsTrId("apps.empty.message")
        confirmNote: root.apps.confirmNote
        results: appsResults
    }

    Component {
        id: appsResults
        AppsResults { model: root.apps }
    }
}
