pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// The status line at the top of a channel's panel: a lamp and what the channel is doing. The lamp
// breathes while work runs, unless motion is reduced.
Row {
    id: root

    enum Tone { Accent, Ok, Muted }
    property string text
    property int tone: PhaseHeader.Accent
    property bool busy: false

    readonly property color lampColor: tone === PhaseHeader.Ok ? PainelTheme.ok
                                     : tone === PhaseHeader.Muted ? PainelTheme.faint : PainelTheme.accent

    spacing: 8
    Accessible.role: Accessible.StaticText
    Accessible.name: root.text

    Item {
        width: 8
        height: 8
        anchors.verticalCenter: parent.verticalCenter

        Rectangle {
            anchors.centerIn: parent
            width: 14
            height: 14
            radius: 7
            color: root.lampColor
            opacity: root.tone === PhaseHeader.Muted ? 0 : 0.18
        }
        Rectangle {
            id: lamp
            anchors.fill: parent
            radius: 4
            color: root.lampColor

            SequentialAnimation on opacity {
                running: root.busy && !PainelTheme.reducedMotion
                loops: Animation.Infinite
                alwaysRunToEnd: true
                NumberAnimation { to: 0.35; duration: 700; easing.type: Easing.InOutSine }
                NumberAnimation { to: 1; duration: 700; easing.type: Easing.InOutSine }
            }
        }
    }

    MonoLabel {
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        font.pixelSize: 11
        tone: root.tone === PhaseHeader.Ok ? MonoLabel.Ok
            : root.tone === PhaseHeader.Muted ? MonoLabel.Muted : MonoLabel.Accent
    }
}
