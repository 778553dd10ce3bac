pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// A key of the phase screens: raised, or filled with the accent for the one action that matters.
Rectangle {
    id: root

    property string text
    property bool accent: false
    signal activated()

    implicitWidth: Math.max(112, label.implicitWidth + 40)
    implicitHeight: 38
    radius: 6
    color: !enabled ? PainelTheme.panel
         : accent ? (mouse.pressed ? Qt.darker(PainelTheme.accent, 1.2) : PainelTheme.accent)
         : (mouse.pressed ? PainelTheme.panel : PainelTheme.raised)
    border.width: 1
    border.color: accent && enabled ? PainelTheme.accent : PainelTheme.border
    opacity: enabled ? 1 : 0.5
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: if (root.enabled) root.activated()
    Keys.onSpacePressed: if (root.enabled) root.activated()
    Keys.onReturnPressed: if (root.enabled) root.activated()

    Text {
        id: label
        anchors.centerIn: parent
        text: root.text
        color: root.accent && root.enabled ? PainelTheme.onAccent : PainelTheme.text
        font.family: PainelTheme.monoFamily
        font.pixelSize: 12
        font.weight: Font.Medium
        font.letterSpacing: 1
        font.capitalization: Font.AllUppercase
    }
    MouseArea {
        id: mouse
        anchors.fill: parent
        onClicked: root.activated()
    }
    PainelFocusRing {}
}
