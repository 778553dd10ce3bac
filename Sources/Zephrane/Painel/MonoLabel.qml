import QtQuick
import Zephrane

// Small capitals in the mono face, for labels on the panel.
Text {
    id: root

    enum Tone { Normal, Muted, Faint, Accent, Ok, Warn }
    property int tone: MonoLabel.Muted

    color: tone === MonoLabel.Accent ? PainelTheme.accent
         : tone === MonoLabel.Faint ? PainelTheme.faint
         : tone === MonoLabel.Normal ? PainelTheme.text
         : tone === MonoLabel.Ok ? PainelTheme.ok
         : tone === MonoLabel.Warn ? PainelTheme.warn : PainelTheme.muted
    font.family: PainelTheme.monoFamily
    font.pixelSize: 10
    font.letterSpacing: 1.2
    font.capitalization: Font.AllUppercase
}
