pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Zephrane

// One key per channel, lit when it is on show, and the disk meter below when the disk can be read.
Rectangle {
    id: root

    required property AppModel appModel
    required property GoCommands goCommands
    signal settingsRequested

    implicitWidth: 262
    implicitHeight: keys.implicitHeight + 220
    color: PainelTheme.panel

    Rectangle {
        anchors.right: parent.right
        width: 1
        height: parent.height
        color: PainelTheme.divider
    }

    ColumnLayout {
        id: keys
        anchors.fill: parent
        anchors.margins: 14
        anchors.topMargin: 18
        spacing: 4

        RowLayout {
            Layout.fillWidth: true
            Layout.bottomMargin: 14
            DotMatrixLogo {
                Layout.preferredHeight: 20
                Layout.preferredWidth: implicitWidth
                // The window's title already names the program.
                Accessible.ignored: true
            }
            Item { Layout.fillWidth: true }
            GoMenuKey {
                commands: root.goCommands
            }
        }

        Repeater {
            model: root.appModel.channels
            delegate: ShellChannelKey {
                required property int raw
                Layout.fillWidth: true
                lit: root.appModel.selection === raw
                onActivated: root.appModel.openRaw(raw)
            }
        }

        Item { Layout.fillHeight: true }

        ShellChannelKey {
            objectName: "settingsKey"
            Layout.fillWidth: true
            Layout.bottomMargin: 10
            info: ({
                shortLabel: qsTrId("settings.short"),
                title: qsTrId("settings.title"),
                keyEquivalent: ",",
                accessibilityName: qsTrId("settings.title")
            })
            onActivated: root.settingsRequested()
        }

        ChannelDiskPoller { id: disk }

        ShellDiskMeter {
            Layout.fillWidth: true
            visible: disk.hasReading
            free: disk.free
            total: disk.total
            usedFraction: disk.usedFraction
        }
    }
}
