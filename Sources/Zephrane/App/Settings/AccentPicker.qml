pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// One swatch per accent; choosing one recolours every window at once and is remembered.
Row {
    id: root

    required property Preferences preferences

    spacing: 10

    Repeater {
        model: PainelTheme.accentNames
        delegate: Rectangle {
            id: swatch
            required property string modelData
            readonly property bool lit: root.preferences.accent === modelData

            width: 26
            height: 26
            radius: 13
            color: "transparent"
            border.width: lit ? 2 : 1
            border.color: lit ? PainelTheme.text : PainelTheme.border
            activeFocusOnTab: true

            Accessible.role: Accessible.RadioButton
            Accessible.name: swatch.modelData === "lime" ? qsTrId("settings.accent.lime")
                           : swatch.modelData === "blue" ? qsTrId("settings.accent.blue")
                           : qsTrId("settings.accent.orange")
            Accessible.checkable: true
            Accessible.checked: swatch.lit
            Accessible.onPressAction: swatch.choose()
            Keys.onSpacePressed: swatch.choose()
            Keys.onReturnPressed: swatch.choose()

            function choose() {
                root.preferences.accent = swatch.modelData
            }

            Rectangle {
                anchors.centerIn: parent
                width: 18
                height: 18
                radius: 9
                color: PainelTheme.accentColor(swatch.modelData)
            }

            TapHandler { onTapped: swatch.choose() }
            PainelFocusRing { target: swatch }
        }
    }
}
