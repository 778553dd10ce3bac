pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// The key for what can't be undone: the pointer must hold it for `holdDuration` seconds; a
// keyboard or assistive press asks again instead of holding.
Rectangle {
    id: root

    property string text
    property string confirmTitle: text
    property string confirmMessage
    property real holdDuration: 1.5
    property real progress: 0
    property bool confirming: false
    signal activated()

    implicitWidth: Math.max(150, label.implicitWidth + 40)
    implicitHeight: 38
    radius: 6
    color: PainelTheme.raised
    border.width: 1
    border.color: PainelTheme.accent
    clip: true
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: confirming ? confirmTitle : text
    Accessible.description: confirmMessage
    Accessible.onPressAction: root.keyPress()
    Keys.onSpacePressed: root.keyPress()
    Keys.onReturnPressed: root.keyPress()

    function keyPress() {
        if (!enabled)
            return
        if (confirming) {
            confirming = false
            activated()
        } else {
            confirming = true
        }
    }

    Rectangle {
        width: parent.width * root.progress
        height: parent.height
        color: PainelTheme.accent
        opacity: 0.85
    }
    Text {
        id: label
        anchors.centerIn: parent
        text: root.confirming ? root.confirmTitle : root.text
        color: PainelTheme.text
        font.family: PainelTheme.monoFamily
        font.pixelSize: 12
        font.weight: Font.Medium
        font.letterSpacing: 1
        font.capitalization: Font.AllUppercase
    }
    NumberAnimation {
        id: fill
        target: root
        property: "progress"
        from: 0
        to: 1
        duration: root.holdDuration * 1000
        onFinished: if (mouse.pressed) root.activated()
    }
    MouseArea {
        id: mouse
        anchors.fill: parent
        enabled: root.enabled
        onPressed: fill.restart()
        onReleased: { fill.stop(); root.progress = 0 }
        onCanceled: { fill.stop(); root.progress = 0 }
    }
    PainelFocusRing {}
}
