import QtQuick
import Zephrane

// A meter of LED cells; screen readers hear its label and the lit share as a percentage, or the
// value text when one is given.
LEDMeterCanvas {
    id: root

    enum Tint { Text, Accent, Muted }
    property string label
    property string value
    property int tint: LEDMeter.Text

    readonly property string percentText: qsTrId("painel.percent").arg(Math.round(Math.max(0, Math.min(1, root.fraction)) * 100))

    implicitWidth: axis === Qt.Horizontal ? 160 : 10
    implicitHeight: axis === Qt.Horizontal ? 8 : 120
    mirrored: LayoutMirroring.enabled
    onColor: tint === LEDMeter.Accent ? PainelTheme.accent : tint === LEDMeter.Muted ? PainelTheme.muted : PainelTheme.text
    accentColor: PainelTheme.accent
    offColor: PainelTheme.ledOff

    Accessible.role: Accessible.ProgressBar
    Accessible.name: root.label
    Accessible.description: root.value.length > 0 ? root.value : root.percentText
}
