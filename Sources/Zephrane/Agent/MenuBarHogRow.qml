import QtQuick
import QtQuick.Layouts
import Zephrane

// A large memory user with its quit key; while it asks for confirmation the row turns into the
// question, with the confirming key taking focus.
Item {
    id: root

    required property MenuBarModel menu
    required property int pid
    required property string name
    required property real bytes
    readonly property bool asking: root.menu.pendingQuit === root.pid

    implicitHeight: 34

    RowLayout {
        anchors.fill: parent
        spacing: 8
        visible: !root.asking

        Text {
            Layout.fillWidth: true
            text: root.name
            color: PainelTheme.text
            font.family: PainelTheme.sansFamily
            font.pixelSize: 12
            elide: Text.ElideRight
        }
        Text {
            text: ByteFormat.text(root.bytes)
            color: PainelTheme.muted
            font.family: PainelTheme.monoFamily
            font.pixelSize: 11
        }
        PainelButton {
            objectName: "hogQuit"
            size: PainelButtonSize.Small
            text: qsTrId("menubar.hogs.quit")
            Accessible.name: qsTrId("menubar.hogs.quit.a11y").arg(root.name)
            onClicked: root.menu.pendingQuit = root.pid
        }
    }

    RowLayout {
        anchors.fill: parent
        spacing: 8
        visible: root.asking

        Text {
            Layout.fillWidth: true
            text: qsTrId("menubar.hogs.confirm").arg(root.name)
            color: PainelTheme.accent
            font.family: PainelTheme.sansFamily
            font.pixelSize: 12
            elide: Text.ElideRight
        }
        PainelButton {
            size: PainelButtonSize.Small
            text: qsTrId("menubar.hogs.cancel")
            onClicked: root.menu.pendingQuit = 0
        }
        PainelButton {
            id: confirmKey
            objectName: "hogConfirm"
            size: PainelButtonSize.Small
            kind: PainelButtonKind.Accent
            text: qsTrId("menubar.hogs.quit")
            Accessible.name: qsTrId("menubar.hogs.confirm").arg(root.name)
            Accessible.description: qsTrId("menubar.hogs.confirm.hint")
            onClicked: root.menu.quit(root.pid)
        }
    }

    onAskingChanged: if (asking) confirmKey.forceActiveFocus()
}
