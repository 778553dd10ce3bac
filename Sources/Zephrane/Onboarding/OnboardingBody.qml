import QtQuick
import Zephrane

// A paragraph of a first-run screen.
Text {
    width: Math.min(parent ? parent.width : 560, 600)
    color: PainelTheme.muted
    font.family: PainelTheme.sansFamily
    font.pixelSize: 14
    lineHeight: 1.3
    wrapMode: Text.WordWrap
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
