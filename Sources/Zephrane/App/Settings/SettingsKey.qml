pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// A raised key with a label, for the settings and the disk-access banner.
Rectangle {
    id: root

    property string text
    property bool accented: false
    signal activated

    implicitWidth: label.implicitWidth + 28
    implicitHeight: 30
    radius: 6
    color: !enabled ? PainelTheme.panel
         : accented ? PainelTheme.accent
         : hover.hovered ? Qt.lighter(PainelTheme.raised, 1.25) : PainelTheme.raised
    border.width: 1
    border.color: accented && enabled ? PainelTheme.accent : PainelTheme.border
    opacity: enabled ? 1 : 0.6
    activeFocusOnTab: enabled

    Accessible.role: Accessible.Button
    Accessible.name: root.text
    Accessible.onPressAction: if (root.enabled) root.activated()
    Keys.onReturnPressed: root.activated()
    Keys.onEnterPressed: root.activated()
    Keys.onSpacePressed: root.activated()

    Text {
        id: label
        anchors.centerIn: parent
        text: root.text
        color: root.accented && root.enabled ? PainelTheme.onAccent : root.enabled ? PainelTheme.text : PainelTheme.faint
        font.family: PainelTheme.sansFamily
        font.pixelSize: 12
        font.weight: Font.Medium
    }

    HoverHandler { id: hover; enabled: root.enabled }
    TapHandler { enabled: root.enabled; onTapped: root.activated() }
    PainelFocusRing { target: root }
}
