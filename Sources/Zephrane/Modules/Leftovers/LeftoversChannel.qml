// Not Bound: Qt 6.4 refuses to let a Loader instantiate bound components declared beside it.
import QtQuick
import Zephrane

// The leftovers channel: the shared phase screens over the leftovers model, with the groups of
// nobody's files in the middle. It scans by itself on the first visit.
Item {
    id: root

    required property AppModel appModel
    required property channelInfo info
    readonly property LeftoversModel leftovers: appModel.leftovers

    Component.onCompleted: leftovers.scanOnFirstVisit()

    ModulePhaseView {
        anchors.fill: parent
        model: root.leftovers
        channelTitle: root.info.title
        idleMessage: qsTrId("leftovers.idle.message")
        emptyMessage: root.leftovers.isPartial ? qsTrId("leftovers.empty.partial") : qsTrId("leftovers.empty.message")
        confirmNote: qsTrId("leftovers.confirm.note")
        results: leftoversResults
    }

    Component {
        id: leftoversResults
        LeftoversResults { model: root.leftovers }
    }
}
