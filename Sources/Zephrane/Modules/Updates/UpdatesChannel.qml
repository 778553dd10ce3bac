// Not Bound: Qt 6.4 refuses to let a Loader instantiate bound components declared beside it.
import QtQuick
import Zephrane

// The updates channel: the shared phase screens over the updates model, with the list of outdated
// apps in the middle. It checks by itself on the first visit.
Item {
    id: root

    required property AppModel appModel
    required property channelInfo info
    readonly property UpdatesModel updates: appModel.updates

    Component.onCompleted: updates.scanOnFirstVisit()

    ModulePhaseView {
        anchors.fill: parent
        model: root.updates
        channelTitle: root.info.title
        idleMessage: qsTrId("updates.idle.message")
        emptyMessage: qsTrId("updates.upToDate.message")
        confirmNote: ""
        results: updatesResults
    }

    Component {
        id: updatesResults
        UpdatesResults { model: root.updates; preferences: root.appModel.preferences }
    }
}
