pragma ComponentBehavior: Bound
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

            // The screen of the channel on show, as the channel table names it. Each screen is
            // given the application model and its channel.
            Loader {
                id: channelView
                objectName: "channelView"
                anchors.fill: parent
                anchors.topMargin: 8
                focus: true

                function show() {
                    const channel = root.appModel.current
                    setSource(channel.screen, { appModel: root.appModel, info: channel })
                }
                Component.onCompleted: show()
                Connections {
                    target: root.appModel
                    function onSelectionChanged() { channelView.show() }
                }
            }
        }
    }
}
