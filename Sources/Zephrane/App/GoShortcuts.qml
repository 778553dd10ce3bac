pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// Ctrl+0 ... Ctrl+7 open the channels; there is no Ctrl+8.
Item {
    id: root

    required property GoCommands commands

    Instantiator {
        model: root.commands.count
        delegate: Shortcut {
            required property int index
            sequence: root.commands.shortcut(index)
            context: Qt.ApplicationShortcut
            onActivated: root.commands.choose(index)
        }
    }
}
