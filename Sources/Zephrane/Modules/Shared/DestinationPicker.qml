pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// Where a cleanup sends what it removes: the trash, or gone for good. Writes the model's
// destination, which is also the stored preference.
Column {
    id: root

    required property ModulePhaseModel model
    property string title

    spacing: 5

    MonoLabel {
        text: root.title
        tone: MonoLabel.Faint
    }
    Row {
        spacing: 0
        Repeater {
            model: [{ raw: "trash", text: qsTrId("destination.trash") },
                    { raw: "delete", text: qsTrId("destination.delete") }]
            delegate: Rectangle {
                id: option
                required property var modelData
                required property int index
                readonly property bool chosen: root.model.destination === modelData.raw
                objectName: "destination-" + modelData.raw
                width: label.implicitWidth + 20
                height: 26
                radius: 5
                color: chosen ? PainelTheme.raised : "transparent"
                border.width: 1
                border.color: chosen ? PainelTheme.border : PainelTheme.divider
                activeFocusOnTab: true

                Accessible.role: Accessible.RadioButton
                Accessible.name: modelData.text
                Accessible.checkable: true
                Accessible.checked: chosen
                Accessible.onPressAction: root.model.destination = modelData.raw
                Keys.onSpacePressed: root.model.destination = modelData.raw
                Keys.onReturnPressed: root.model.destination = modelData.raw

                Text {
                    id: label
                    anchors.centerIn: parent
                    text: option.modelData.text
                    color: option.chosen ? PainelTheme.text : PainelTheme.muted
                    font.family: PainelTheme.monoFamily
                    font.pixelSize: 11
                    font.capitalization: Font.AllUppercase
                    font.letterSpacing: 1
                }
                MouseArea {
                    anchors.fill: parent
                    onClicked: root.model.destination = option.modelData.raw
                }
                PainelFocusRing {}
            }
        }
    }
}
