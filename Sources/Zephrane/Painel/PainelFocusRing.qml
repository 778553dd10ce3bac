import QtQuick
import Zephrane

// The keyboard focus outline of every custom control; the system's ring does not reach them.
Rectangle {
    property Item target: parent
    anchors.fill: target
    anchors.margins: -3
    radius: (target && target.radius !== undefined ? target.radius : 4) + 3
    color: "transparent"
    border.width: 2
    border.color: PainelTheme.accent
    visible: target !== null && target.activeFocus
    z: 10
}
