import QtQuick
import Zephrane

// The band that crosses the scanning panel while a scan runs; it stands still in the middle under
// reduced motion.
ScanSweepCanvas {
    id: root

    property bool running: true
    property real sweep: 0

    phase: PainelTheme.reducedMotion ? 0.5 : sweep
    color: PainelTheme.accent
    lineColor: Qt.rgba(PainelTheme.divider.r, PainelTheme.divider.g, PainelTheme.divider.b, 0.6)
    mirrored: LayoutMirroring.enabled
    implicitHeight: 36
    Accessible.ignored: true

    NumberAnimation on sweep {
        running: root.running && root.visible && !PainelTheme.reducedMotion
        from: 0
        to: 1
        duration: 2200
        loops: Animation.Infinite
        easing.type: Easing.InOutSine
    }
}
