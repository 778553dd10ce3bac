import QtQuick
import Zephrane

// A step's headline in two or three lines, the last in the accent colour.
Column {
    id: root
    property var lines: []
    spacing: 2
    Accessible.role: Accessible.Heading
    Accessible.name: root.lines.join(" ")
    Repeater {
        model: root.lines
        Text {
            required property string modelData
            required property int index
            text: modelData
            color: index === root.lines.length - 1 ? PainelTheme.accent : PainelTheme.text
            font.family: PainelTheme.sansFamily
            font.pixelSize: 30
            font.weight: Font.DemiBold
        }
    }
}
