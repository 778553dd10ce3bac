pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// The window has no system title bar, so it carries its own minimise, maximise and close keys.
Row {
    id: root

    required property Window window

    spacing: 8

    component ControlKey: Rectangle {
        id: key
        property string glyph
        property string label
        signal pressed
        width: 22
        height: 22
        radius: 11
        color: hover.hovered ? PainelTheme.raised : "transparent"
        border.color: PainelTheme.border
        activeFocusOnTab: true
        Accessible.role: Accessible.Button
        Accessible.name: key.label
        Accessible.onPressAction: key.pressed()
        Keys.onReturnPressed: key.pressed()
        Keys.onSpacePressed: key.pressed()
        Text {
            anchors.centerIn: parent
            text: key.glyph
            color: PainelTheme.muted
            font.family: PainelTheme.monoFamily
            font.pixelSize: 12
        }
        HoverHandler { id: hover }
        TapHandler { onTapped: key.pressed() }
        PainelFocusRing { target: key }
    }

    ControlKey {
        glyph: "–"
        label: qsTrId("shell.window.minimize")
        onPressed: root.window.showMinimized()
    }
    ControlKey {
        glyph: "□"
        label: qsTrId("shell.window.maximize")
        onPressed: root.window.visibility === Window.Maximized ? root.window.showNormal() : root.window.showMaximized()
    }
    ControlKey {
        glyph: "×"
        label: qsTrId("shell.window.close")
        onPressed: root.window.close()
    }
}
