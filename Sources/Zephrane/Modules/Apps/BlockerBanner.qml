pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// Why the app on show can't be uninstalled now; a running app can be asked to quit from here.
Rectangle {
    id: root

    required property UninstallerModel model

    visible: model.blocker.length > 0
    implicitHeight: visible ? Math.max(message.implicitHeight, quit.implicitHeight) + 24 : 0
    radius: 6
    color: "transparent"
    border.width: 1
    border.color: PainelTheme.warn
    Accessible.role: Accessible.AlertMessage
    Accessible.name: message.text

    Text {
        id: message
        objectName: "blockerMessage"
        anchors { left: parent.left; leftMargin: 14; right: quit.visible ? quit.left : parent.right; rightMargin: 14
                  verticalCenter: parent.verticalCenter }
        text: root.model.blockerMessage
        color: PainelTheme.warn
        font.family: PainelTheme.sansFamily
        font.pixelSize: 13
        wrapMode: Text.WordWrap
    }
    PainelButton {
        id: quit
        objectName: "quitKey"
        anchors { right: parent.right; rightMargin: 10; verticalCenter: parent.verticalCenter }
        visible: root.model.blocker === "running"
        enabled: !root.model.quitting
        size: PainelButtonSize.Small
        text: qsTrId("apps.blocked.quit")
        onClicked: root.model.quitSelectedApp()
    }
}
