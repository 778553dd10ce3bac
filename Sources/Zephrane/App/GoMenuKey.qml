pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls.Basic
import Zephrane

// Opens the "Go" menu: every channel as a checkable item with its shortcut.
Rectangle {
    id: root

    required property GoCommands commands

    implicitWidth: 36
    implicitHeight: 24
    radius: 5
    color: PainelTheme.raised
    border.color: PainelTheme.border
    activeFocusOnTab: true
    Accessible.role: Accessible.ButtonMenu
    Accessible.name: root.commands.title
    Accessible.onPressAction: menu.open()
    Keys.onReturnPressed: menu.open()
    Keys.onSpacePressed: menu.open()

    Text {
        anchors.centerIn: parent
        text: root.commands.title
        color: PainelTheme.muted
        font.family: PainelTheme.monoFamily
        font.pixelSize: 10
        font.capitalization: Font.AllUppercase
    }

    TapHandler { onTapped: menu.open() }
    PainelFocusRing { target: root }

    Menu {
        id: menu
        y: root.height + 4
        title: root.commands.title
        palette.window: PainelTheme.panel
        palette.windowText: PainelTheme.text
        palette.base: PainelTheme.panel
        palette.text: PainelTheme.text
        palette.highlight: PainelTheme.raised
        palette.highlightedText: PainelTheme.text
        palette.button: PainelTheme.panel
        palette.buttonText: PainelTheme.text
        palette.light: PainelTheme.border
        palette.mid: PainelTheme.border
        palette.dark: PainelTheme.border

        Instantiator {
            model: root.commands.count
            delegate: MenuItem {
                required property int index
                text: root.commands.itemTitle(index) + "\t" + root.commands.shortcut(index)
                checkable: true
                checked: root.commands.model && root.commands.model.selection === index
                // Either value means "go there": the channel on show stays selected.
                onTriggered: {
                    root.commands.choose(index)
                    checked = Qt.binding(() => root.commands.model && root.commands.model.selection === index)
                }
            }
            onObjectAdded: (index, object) => menu.insertItem(index, object)
            onObjectRemoved: (index, object) => menu.removeItem(object)
        }

        MenuSeparator {}
        // No update service is built into this edition of the program (see the About settings).
        MenuItem {
            text: qsTrId("menu.checkForUpdates")
            enabled: false
        }
    }
}
