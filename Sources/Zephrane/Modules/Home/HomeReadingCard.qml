import QtQuick
import Zephrane

// One channel on Home: its name and what it last found; pressing it opens the channel.
Rectangle {
    id: root
    required property channelReading modelData
    signal activated(int channel)

    objectName: "readingCard" + modelData.channel
    implicitHeight: 64
    radius: 6
    color: mouse.containsMouse ? PainelTheme.raised : PainelTheme.panel
    border.color: modelData.lit ? PainelTheme.accent : PainelTheme.border
    activeFocusOnTab: true

    Keys.onReturnPressed: root.activated(modelData.channel)
    Keys.onSpacePressed: root.activated(modelData.channel)
    Accessible.role: Accessible.Button
    Accessible.name: modelData.title + ", " + modelData.text
    Accessible.onPressAction: root.activated(modelData.channel)

    Column {
        anchors.fill: parent
        anchors.margins: 12
        spacing: 6
        MonoLabel {
            text: root.modelData.title
            tone: root.modelData.lit ? MonoLabel.Accent : MonoLabel.Muted
        }
        Text {
            width: parent.width
            text: root.modelData.text
            color: PainelTheme.text
            font.family: PainelTheme.sansFamily
            font.pixelSize: 13
            elide: Text.ElideRight
        }
    }
    MouseArea {
        id: mouse
        anchors.fill: parent
        hoverEnabled: true
        onClicked: root.activated(root.modelData.channel)
    }
    PainelFocusRing { target: root }
}
