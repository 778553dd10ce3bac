pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// The lamp that serves as the check box of every list of removable items: lit, unlit, or half lit
// when only part of a group is chosen.
Item {
    id: root

    property bool isOn: false
    property bool isMixed: false
    // What the lamp chooses, for screen readers.
    property string label
    property bool interactive: true
    readonly property real radius: 4
    signal toggled

    readonly property bool lit: isOn || isMixed

    implicitWidth: 16
    implicitHeight: 16
    activeFocusOnTab: interactive

    Accessible.role: Accessible.CheckBox
    Accessible.name: root.label
    Accessible.checkable: true
    Accessible.checked: root.isOn && !root.isMixed
    Accessible.checkStateMixed: root.isMixed
    Accessible.onToggleAction: if (root.interactive) root.toggled()
    Accessible.onPressAction: if (root.interactive) root.toggled()
    Keys.onSpacePressed: if (root.interactive) root.toggled()

    // A soft glow around a lit lamp.
    Rectangle {
        anchors.centerIn: lamp
        width: lamp.width + 6
        height: lamp.height + 6
        radius: root.radius + 3
        color: PainelTheme.accent
        opacity: root.isOn && !root.isMixed ? 0.2 : 0
    }

    Rectangle {
        id: lamp
        anchors.centerIn: parent
        width: 14
        height: 14
        radius: root.radius
        color: root.isOn && !root.isMixed ? PainelTheme.accent : PainelTheme.ledOff
        border.width: 1
        border.color: root.lit ? PainelTheme.accent : PainelTheme.border

        Rectangle {
            visible: root.isMixed
            anchors.centerIn: parent
            width: 8
            height: 2
            radius: 1
            color: PainelTheme.accent
        }
    }

    TapHandler {
        enabled: root.interactive
        onTapped: root.toggled()
    }
    PainelFocusRing { target: root }
}
