pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// A big read-out: the number in display digits and a smaller unit beside it.
Row {
    id: root

    property string number
    property string unit
    property string spoken
    property color color: PainelTheme.text
    property int size: 56

    spacing: 8
    Accessible.role: Accessible.StaticText
    Accessible.name: spoken.length > 0 ? spoken : number + " " + unit

    Text {
        id: digits
        text: root.number
        color: root.color
        font.family: PainelTheme.monoFamily
        font.pixelSize: root.size
        font.weight: Font.Medium
    }
    Text {
        anchors.baseline: digits.baseline
        text: root.unit
        visible: text.length > 0
        color: PainelTheme.muted
        font.family: PainelTheme.monoFamily
        font.pixelSize: Math.round(root.size * 0.36)
    }
}
