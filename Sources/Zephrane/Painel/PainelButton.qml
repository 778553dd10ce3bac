pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Zephrane

// A key of the panel in one of three styles: the accent key for the one action a screen is about,
// the raised key for the others, the light key where a key must stand out from a dark well.
T.Button {
    id: root

    property int kind: PainelButtonKind.Raised
    property int size: PainelButtonSize.Regular
    property real radius: 6

    readonly property color faceColor: kind === PainelButtonKind.Accent ? PainelTheme.accent
                                     : kind === PainelButtonKind.Light ? PainelTheme.text : PainelTheme.raised
    readonly property color labelColor: kind === PainelButtonKind.Accent ? PainelTheme.onAccent
                                      : kind === PainelButtonKind.Light ? PainelTheme.bg : PainelTheme.text

    implicitHeight: PainelTheme.keyHeight(size)
    implicitWidth: Math.max(implicitHeight, implicitContentWidth + leftPadding + rightPadding)
    leftPadding: PainelTheme.keyPadding(size)
    rightPadding: PainelTheme.keyPadding(size)
    topPadding: 0
    bottomPadding: 0
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : 0.4

    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    contentItem: Text {
        text: root.text
        color: root.labelColor
        font.family: PainelTheme.monoFamily
        font.weight: Font.Medium
        font.pixelSize: PainelTheme.keyFontSize(root.size)
        font.letterSpacing: 1
        font.capitalization: Font.AllUppercase
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }

    background: Rectangle {
        radius: root.radius
        color: root.down ? Qt.darker(root.faceColor, 1.2)
             : root.hovered ? Qt.lighter(root.faceColor, 1.1) : root.faceColor
        border.width: root.kind === PainelButtonKind.Raised ? 1 : 0
        border.color: PainelTheme.border

        // The lit upper edge that makes a key look raised; gone while it is held down.
        Rectangle {
            visible: !root.down
            anchors.top: parent.top
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.margins: 1
            anchors.leftMargin: root.radius
            anchors.rightMargin: root.radius
            height: 1
            color: Qt.rgba(PainelTheme.text.r, PainelTheme.text.g, PainelTheme.text.b, 0.08)
        }
    }

    PainelFocusRing { target: root }
}
