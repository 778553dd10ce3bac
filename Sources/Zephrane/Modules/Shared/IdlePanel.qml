pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// Before the first scan: what the channel does, and the key that starts it.
Item {
    id: root

    required property ModulePhaseModel model
    required property string channelTitle
    required property string idleMessage

    Column {
        anchors.fill: parent
        anchors.margins: 32
        spacing: 16

        PhaseHeader {
            text: qsTrId("phase.status.idle")
            tone: PhaseHeader.Muted
        }
        Text {
            width: parent.width
            text: root.channelTitle
            color: PainelTheme.text
            font.family: PainelTheme.sansFamily
            font.pixelSize: 26
            font.weight: Font.DemiBold
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Text {
            width: Math.min(parent.width, 560)
            text: root.idleMessage
            color: PainelTheme.muted
            font.family: PainelTheme.sansFamily
            font.pixelSize: 14
            lineHeight: 1.3
            wrapMode: Text.WordWrap
        }
        Row {
            spacing: 12
            topPadding: 8
            PainelButton {
                objectName: "scanKey"
                text: qsTrId("phase.scan")
                kind: PainelButtonKind.Accent
                focus: true
                onClicked: root.model.actions.scan()
            }
            PainelButton {
                objectName: "idleSecondaryKey"
                visible: root.model.actions.idleSecondaryTitle.length > 0
                text: root.model.actions.idleSecondaryTitle
                onClicked: root.model.actions.idleSecondary()
            }
        }
    }
}
