import QtQuick
import Zephrane

// A meter of LED cells; screen readers hear its label with the lit share as a percentage, and the
// value text as its description when one is given.
LEDMeterCanvas {
    id: root

    enum Tint { Text, Accent, Muted }
    property string label
    property string valueText
    property int tint: LEDMeter.Text

    readonly property string percentText: qsTrId("painel.percent").arg(Math.round(Math.max(0, Math.min(1, root.fraction)) * 100))

    implicitWidth: axis === Qt.Horizontal ? 160 : 10
    implicitHeight: axis === Qt.Horizontal ? 8 : 120
    mirrored: LayoutMirroring.enabled
    onColor: tint === LEDMeter.Accent ? PainelTheme.accent : tint === LEDMeter.Muted ? PainelTheme.muted : PainelTheme.text
    accentColor: PainelTheme.accent
    offColor: PainelTheme.ledOff

    Accessible.role: Accessible.ProgressBar
    Accessible.name: root.label.length > 0 ? root.label + ", " + root.percentText : root.percentText
    Accessible.description: root.valueText
}
