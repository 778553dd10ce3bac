import QtQuick
import QtQuick.Layouts
import Zephrane

// One measure of the machine: a title, a line of text and, when there is one, a meter of the share.
Rectangle {
    id: root

    property string title
    property string valueText
    property string spokenName
    property real fraction: -1 // none

    implicitHeight: body.implicitHeight + 20
    radius: 6
    color: PainelTheme.deep
    border.width: 1
    border.color: PainelTheme.border
    activeFocusOnTab: true

    Accessible.role: Accessible.StaticText
    Accessible.name: root.spokenName

    ColumnLayout {
        id: body
        x: 10
        y: 10
        width: parent.width - 20
        spacing: 6

        Text {
            text: root.title
            color: PainelTheme.muted
            font.family: PainelTheme.monoFamily
            font.pixelSize: 10
            font.letterSpacing: 1
            font.capitalization: Font.AllUppercase
        }
        Text {
            Layout.fillWidth: true
            text: root.valueText
            color: PainelTheme.text
            font.family: PainelTheme.sansFamily
            font.pixelSize: 12
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
        }
        LEDMeter {
            Layout.fillWidth: true
            visible: root.fraction >= 0
            fraction: Math.max(0, root.fraction)
            label: root.title
            valueText: root.valueText
            tint: root.fraction >= 0.9 ? LEDMeter.Accent : LEDMeter.Text
        }
    }
    PainelFocusRing { target: root }
}
