pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// A channel whose screen is not built yet: its title, and nothing that pretends to work.
Item {
    id: root

    required property AppModel appModel
    required property channelInfo info

    Column {
        anchors.left: parent.left
        anchors.top: parent.top
        anchors.margins: 32
        spacing: 10

        MonoLabel {
            text: root.info.shortLabel
            tone: MonoLabel.Faint
        }
        Text {
            text: root.info.title
            color: PainelTheme.text
            font.family: PainelTheme.sansFamily
            font.pixelSize: 26
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        Text {
            text: qsTrId("shell.channel.notBuilt")
            color: PainelTheme.muted
            font.family: PainelTheme.sansFamily
            font.pixelSize: 14
        }
    }
}
