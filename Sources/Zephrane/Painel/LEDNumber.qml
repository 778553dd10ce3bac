import QtQuick
import Zephrane

// Big digits in the palette's colours, read by a screen reader as one label and value.
LEDNumberCanvas {
    id: root

    // What the number measures ("Selected", "Free"...), for screen readers.
    property string label

    color: PainelTheme.text
    unitColor: PainelTheme.muted
    family: PainelTheme.monoFamily
    // Unlit segments show faintly, so they never read as lit ones.
    ghostColor: Qt.rgba(PainelTheme.ledOff.r, PainelTheme.ledOff.g, PainelTheme.ledOff.b, 0.55)
    unitFamily: PainelTheme.monoFamily

    Accessible.role: Accessible.StaticText
    Accessible.name: root.label.length > 0 ? qsTrId("painel.spokenValue").arg(root.label).arg(root.spoken) : root.spoken
}
