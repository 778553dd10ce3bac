pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// A scan that found nothing to clean.
Item {
    id: root

    required property ModulePhaseModel model
    required property string emptyMessage

    Column {
        anchors.fill: parent
        anchors.margins: 32
        spacing: 16

        PhaseHeader { text: qsTrId("phase.status.clean"); tone: PhaseHeader.Ok }
        Text {
            width: parent.width
            text: qsTrId("phase.empty.title")
            color: PainelTheme.text
            font.family: PainelTheme.sansFamily
            font.pixelSize: 26
            font.weight: Font.DemiBold
            wrapMode: Text.WordWrap
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        LEDNumber {
            integer: qsTrId("phase.empty.zero")
            spoken: qsTrId("phase.empty.zero")
            size: 56
            color: PainelTheme.ok
            label: qsTrId("phase.empty.title")
        }
        Text {
            width: Math.min(parent.width, 560)
            text: root.emptyMessage
            color: PainelTheme.muted
            font.family: PainelTheme.sansFamily
            font.pixelSize: 14
            lineHeight: 1.3
            wrapMode: Text.WordWrap
        }
        PainelButton {
            objectName: "rescanKey"
            text: qsTrId("phase.rescan")
            focus: true
            onClicked: root.model.actions.scan()
        }
    }
}
