pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// The installed apps beside the one on show: the list on the left takes the focus first, the
// detail pane with its files and the uninstall key on the right.
FocusScope {
    id: root

    required property UninstallerModel model

    AppList {
        id: list
        objectName: "appList"
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        width: Math.round(parent.width * 0.4)
        model: root.model
        focus: true
    }

    Rectangle {
        anchors { left: list.right; top: parent.top; bottom: parent.bottom }
        width: 1
        color: PainelTheme.divider
    }

    AppDetail {
        objectName: "appDetail"
        anchors { left: list.right; leftMargin: 1; right: parent.right; top: parent.top; bottom: parent.bottom }
        model: root.model
    }
}
