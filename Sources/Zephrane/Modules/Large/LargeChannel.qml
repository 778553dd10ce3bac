// Not Bound: Qt 6.4 refuses to let a Loader instantiate bound components declared beside it.
import QtQuick
import Zephrane

// The large-files channel: the shared phase screens over the large-files model, with the list of
// files in the middle. It scans by itself on the first visit.
Item {
    id: root

    required property AppModel appModel
    required property channelInfo info
    readonly property LargeFilesModel large: appModel.large

    Component.onCompleted: large.scanOnFirstVisit()

    ModulePhaseView {
        anchors.fill: parent
        model: root.large
        channelTitle: root.info.title
        idleMessage: qsTrId("large.idle.message")
        emptyMessage: qsTrId("large.empty.message")
        confirmNote: qsTrId("large.confirm.note")
        results: largeResults
    }

    Component {
        id: largeResults
        LargeResults { model: root.large }
    }
}
