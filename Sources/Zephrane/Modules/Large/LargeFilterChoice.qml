pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// One filter of the large-files bar: its label over a row of keys, one lit. Choosing writes
// nothing itself; the owner sets the model from `chosen`.
Column {
    id: root

    property string title
    property var options: []     // largeFilterOption values
    property string current
    property string name         // for object names: "size", "age", "kind"
    signal chosen(string raw)

    spacing: 5

    MonoLabel {
        text: root.title
        tone: MonoLabel.Faint
    }
    Row {
        spacing: 0
        Repeater {
            model: root.options
            delegate: Rectangle {
                id: option
                required property var modelData
                readonly property bool lit: root.current === modelData.raw
                objectName: "filter-" + root.name + "-" + modelData.raw
                width: label.implicitWidth + 18
                height: 26
                radius: 5
                color: lit ? PainelTheme.raised : "transparent"
                border.width: 1
                border.color: lit ? PainelTheme.border : PainelTheme.divider
                activeFocusOnTab: true

                Accessible.role: Accessible.RadioButton
                Accessible.name: root.title + ": " + modelData.spoken
                Accessible.checkable: true
                Accessible.checked: lit
                Accessible.onPressAction: root.chosen(modelData.raw)
                Keys.onSpacePressed: root.chosen(modelData.raw)
                Keys.onReturnPressed: root.chosen(modelData.raw)

                Text {
                    id: label
                    anchors.centerIn: parent
                    text: option.modelData.title
                    color: option.lit ? PainelTheme.text : PainelTheme.muted
                    font.family: PainelTheme.monoFamily
                    font.pixelSize: 11
                    font.capitalization: Font.AllUppercase
                    font.letterSpacing: 1
                }
                MouseArea {
                    anchors.fill: parent
                    onClicked: { option.forceActiveFocus(); root.chosen(option.modelData.raw) }
                }
                PainelFocusRing {}
            }
        }
    }
}
