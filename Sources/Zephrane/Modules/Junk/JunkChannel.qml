// Not Bound: Qt 6.4 refuses to let a Loader instantiate bound components declared beside it.
import QtQuick
import Zephrane

// The junk channel: the shared phase screens over the junk model, with the junk results in the
// middle. It scans by itself on the first visit.
Item {
    id: root

    required property AppModel appModel
    required property channelInfo info
    readonly property SystemJunkModel junk: appModel.junk

    Component.onCompleted: junk.scanOnFirstVisit()

    ModulePhaseView {
        anchors.fill: parent
        model: root.junk
        channelTitle: root.info.title
        idleMessage: qsTrId("junk.idle.message")
        emptyMessage: qsTrId("junk.empty.message")
        confirmNote: qsTrId("junk.confirm.note")
        results: junkResults
    }

    Component {
        id: junkResults
        JunkResults { model: root.junk }
    }
}
