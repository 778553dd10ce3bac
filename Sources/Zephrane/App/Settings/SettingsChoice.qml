pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Zephrane

// A segmented choice: one lit segment among `options` ({raw, title}), `current` by raw value.
Rectangle {
    id: root

    property var options: []
    property string current
    property string accessibleName
    signal chosen(string raw)

    implicitHeight: 32
    implicitWidth: segments.implicitWidth + 6
    radius: 7
    color: PainelTheme.deep
    border.width: 1
    border.color: PainelTheme.border

    Accessible.role: Accessible.Grouping
    Accessible.name: root.accessibleName

    RowLayout {
        id: segments
        anchors.fill: parent
        anchors.margins: 3
        spacing: 2

        Repeater {
            model: root.options
            delegate: Rectangle {
                id: segment
                required property var modelData
                readonly property bool lit: root.current === modelData.raw

                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredWidth: label.implicitWidth + 36
                radius: 5
                color: lit ? PainelTheme.raised : hover.hovered ? PainelTheme.divider : "transparent"
                border.width: lit ? 1 : 0
                border.color: PainelTheme.border
                activeFocusOnTab: true

                Accessible.role: Accessible.RadioButton
                Accessible.name: segment.modelData.title
                Accessible.checkable: true
                Accessible.checked: segment.lit
                Accessible.onPressAction: root.chosen(segment.modelData.raw)
                Keys.onSpacePressed: root.chosen(segment.modelData.raw)
                Keys.onReturnPressed: root.chosen(segment.modelData.raw)

                Rectangle {
                    id: lamp
                    anchors.left: parent.left
                    anchors.leftMargin: 9
                    anchors.verticalCenter: parent.verticalCenter
                    width: 5
                    height: 5
                    radius: 2.5
                    color: segment.lit ? PainelTheme.accent : PainelTheme.ledOff
                }

                Text {
                    id: label
                    anchors.left: lamp.right
                    anchors.leftMargin: 7
                    anchors.right: parent.right
                    anchors.rightMargin: 6
                    anchors.verticalCenter: parent.verticalCenter
                    text: segment.modelData.title
                    color: segment.lit ? PainelTheme.text : PainelTheme.muted
                    font.family: PainelTheme.sansFamily
                    font.pixelSize: 12
                    font.weight: segment.lit ? Font.DemiBold : Font.Normal
                    elide: Text.ElideRight
                }

                HoverHandler { id: hover }
                TapHandler { onTapped: root.chosen(segment.modelData.raw) }
                PainelFocusRing { target: segment }
            }
        }
    }
}
