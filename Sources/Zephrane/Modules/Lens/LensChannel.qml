// Not Bound: Qt 6.4 refuses to let a Loader instantiate bound components declared beside it.
import QtQuick
import QtQuick.Dialogs
import Zephrane

// The disk map channel: the shared phase screens around the map of one scanned folder.
Item {
    id: root

    required property AppModel appModel
    required property channelInfo info
    readonly property SpaceLensModel lens: appModel.spaceLens

    ModulePhaseView {
        objectName: "lensPhaseView"
        anchors.fill: parent
        model: root.lens
        channelTitle: root.info.title
        idleMessage: qsTrId("lens.idle.message")
        emptyMessage: qsTrId("lens.empty.message")
        confirmNote: qsTrId("lens.confirm.note")
        results: lensResults
    }

    Component {
        id: lensResults
        LensResults { lens: root.lens }
    }

    FolderDialog {
        id: chooser
        objectName: "lensFolderDialog"
        title: qsTrId("lens.choose.message")
        acceptLabel: qsTrId("lens.choose.prompt")
        onAccepted: root.lens.scanFolder(selectedFolder)
    }

    Connections {
        target: root.lens
        function onFolderChoiceRequested(startFolder) {
            chooser.currentFolder = startFolder
            chooser.open()
        }
    }
}
