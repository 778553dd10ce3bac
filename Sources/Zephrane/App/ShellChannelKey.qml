pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// A channel's key in the column: lamp, short label, title and its shortcut digit.
Rectangle {
    id: root

    required property var info
    property bool lit: false
    signal activated

    implicitHeight: 42
    radius: 7
    color: lit ? PainelTheme.raised : (hover.hovered ? PainelTheme.divider : "transparent")
    border.width: lit ? 1 : 0
    border.color: PainelTheme.border
    activeFocusOnTab: true

    Accessible.role: Accessible.PageTab
    Accessible.name: root.info.accessibilityName
    Accessible.selected: root.lit
    Accessible.onPressAction: root.activated()
    Keys.onReturnPressed: root.activated()
    Keys.onEnterPressed: root.activated()
    Keys.onSpacePressed: root.activated()

    Rectangle {
        id: lamp
        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        width: 7
        height: 7
        radius: 3.5
        color: root.lit ? PainelTheme.accent : PainelTheme.ledOff
    }

    Text {
        id: shortText
        anchors.left: lamp.right
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        width: 52
        text: root.info.shortLabel
        color: root.lit ? PainelTheme.accent : PainelTheme.faint
        font.family: PainelTheme.monoFamily
        font.pixelSize: 10
        font.letterSpacing: 0.6
        font.capitalization: Font.AllUppercase
        elide: Text.ElideRight
    }

    Text {
        anchors.left: shortText.right
        anchors.leftMargin: 6
        anchors.right: digit.left
        anchors.rightMargin: 6
        anchors.verticalCenter: parent.verticalCenter
        text: root.info.title
        color: root.lit ? PainelTheme.text : PainelTheme.muted
        font.family: PainelTheme.sansFamily
        font.pixelSize: 13
        font.weight: root.lit ? Font.DemiBold : Font.Normal
        elide: Text.ElideRight
    }

    Text {
        id: digit
        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        text: "^" + root.info.keyEquivalent
        color: PainelTheme.faint
        font.family: PainelTheme.monoFamily
        font.pixelSize: 10
    }

    HoverHandler { id: hover }
    TapHandler { onTapped: root.activated() }
    PainelFocusRing { target: root }
}
