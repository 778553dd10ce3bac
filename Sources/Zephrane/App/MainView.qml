// Not Bound: Qt 6.4 refuses to let a Loader instantiate bound components declared beside it.
import QtQuick
import QtQuick.Layouts
import Zephrane

// The channel column beside the selected channel's screen.
Item {
    id: root

    required property AppModel appModel
    required property Window window
    readonly property alias goCommands: goCommands
    readonly property real implicitMinimumWidth: column.implicitWidth + 640
    readonly property real implicitMinimumHeight: Math.max(column.implicitHeight, 560)
    signal settingsRequested

    GoCommands {
        id: goCommands
        model: root.appModel
    }

    RowLayout {
        anchors.fill: parent
        spacing: 0

        ChannelColumn {
            id: column
            Layout.fillHeight: true
            appModel: root.appModel
            goCommands: goCommands
            onSettingsRequested: root.settingsRequested()
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.fillHeight: true
            color: PainelTheme.bg

            WindowControls {
                id: windowControls
                anchors.top: parent.top
                anchors.right: parent.right
                anchors.margins: 10
                window: root.window
                z: 2
            }

            Loader {
                id: channelView
                anchors.fill: parent
                anchors.topMargin: 8
                sourceComponent: [home, junk, lens, large, apps, leftovers, trash, updates][root.appModel.selection]
            }
        }
    }

    Component { id: home; ChannelPlaceholder { channel: 0; appModel: root.appModel } }
    Component { id: junk; JunkChannel { appModel: root.appModel } }
    Component { id: lens; LensChannel { appModel: root.appModel } }
    Component { id: large; ChannelPlaceholder { channel: 3; appModel: root.appModel } }
    Component { id: apps; ChannelPlaceholder { channel: 4; appModel: root.appModel } }
    Component { id: leftovers; ChannelPlaceholder { channel: 5; appModel: root.appModel } }
    Component { id: trash; ChannelPlaceholder { channel: 6; appModel: root.appModel } }
    Component { id: updates; ChannelPlaceholder { channel: 7; appModel: root.appModel } }
}
