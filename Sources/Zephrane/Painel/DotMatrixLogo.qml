import QtQuick
import Zephrane

// The product's name on a dot-matrix display. When it is switched on it lights one letter after the
// other, each fading in over 0.15 s; under reduced motion it is whole at once.
DotMatrixLogoCanvas {
    id: root

    property bool isOn: true
    property bool animatesPowerOn: true
    property bool poweredUp: false

    implicitHeight: 22
    implicitWidth: implicitHeight * columns / rows
    onColor: PainelTheme.text
    offColor: PainelTheme.ledOff
    litCount: root.isOn && root.poweredUp ? root.stepCount : 0

    Behavior on litCount {
        enabled: root.animatesPowerOn && !PainelTheme.reducedMotion
        NumberAnimation { duration: 150 * root.stepCount }
    }

    // Switched on after it is first shown, so the power-on runs as the window appears.
    Component.onCompleted: poweredUp = true

    Accessible.role: Accessible.Graphic
    Accessible.name: qsTrId("Zephrane")
}
