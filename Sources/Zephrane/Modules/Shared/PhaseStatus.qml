pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// The status line at the top of a phase screen: a lamp and a word in small capitals.
Row {
    id: root

    enum Tone { Accent, Ok, Muted }
    property string text
    property int tone: PhaseStatus.Accent
    readonly property color lampColor: tone === PhaseStatus.Ok ? PainelTheme.ok
                                     : tone === PhaseStatus.Muted ? PainelTheme.faint : PainelTheme.accent
    spacing: 8

    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 8
        height: 8
        radius: 4
        color: root.lampColor
    }
    MonoLabel {
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        color: root.lampColor
        font.pixelSize: 11
    }
}
