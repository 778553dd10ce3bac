pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Zephrane

// A setting that is on or off: its title, and a switch with a lamp. The switch keeps no state of
// its own; it shows `checked` and asks for the other value.
Item {
    id: root

    property string title
    property bool checked: false
    signal toggled(bool on)

    implicitHeight: 40
    implicitWidth: titleText.implicitWidth + track.width + 24

    Text {
        id: titleText
        anchors.left: parent.left
        anchors.right: track.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        text: root.title
        color: PainelTheme.text
        font.family: PainelTheme.sansFamily
        font.pixelSize: 13
        elide: Text.ElideRight
    }

    Rectangle {
        id: track
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: 46
        height: 24
        radius: 12
        color: PainelTheme.deep
        border.width: 1
        border.color: PainelTheme.border
        activeFocusOnTab: true

        Accessible.role: Accessible.CheckBox
        Accessible.name: root.title
        Accessible.checkable: true
        Accessible.checked: root.checked
        Accessible.onPressAction: root.toggled(!root.checked)
        Accessible.onToggleAction: root.toggled(!root.checked)
        Keys.onSpacePressed: root.toggled(!root.checked)
        Keys.onReturnPressed: root.toggled(!root.checked)

        Rectangle {
            id: knob
            width: 18
            height: 18
            radius: 9
            anchors.verticalCenter: parent.verticalCenter
            x: root.checked ? parent.width - width - 3 : 3
            color: PainelTheme.raised
            border.width: 1
            border.color: PainelTheme.border
            Behavior on x { NumberAnimation { duration: PainelTheme.reducedMotion ? 0 : 120; easing.type: Easing.OutCubic } }

            Rectangle {
                anchors.centerIn: parent
                width: 6
                height: 6
                radius: 3
                color: root.checked ? PainelTheme.accent : PainelTheme.ledOff
            }
        }

        TapHandler { onTapped: root.toggled(!root.checked) }
        PainelFocusRing { target: track }
    }
}
