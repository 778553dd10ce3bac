pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// A removal under way: what is being cleaned, and how much.
Item {
    id: root

    required property ModulePhaseModel model
    required property string channelTitle
    readonly property cleanupSummary summary: model.summary

    Column {
        anchors.fill: parent
        anchors.margins: 32
        spacing: 16

        PhaseHeader { text: qsTrId("phase.status.cleaning"); tone: PhaseHeader.Accent; busy: true }
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
        MonoLabel { text: qsTrId("phase.cleaning.total"); tone: MonoLabel.Faint }
        LEDNumber {
            objectName: "cleaningBytes"
            bytes: root.summary.bytes
            size: 56
            color: PainelTheme.accent
            label: qsTrId("phase.cleaning.total")
        }
        Text {
            text: root.summary.countText
            color: PainelTheme.muted
            font.family: PainelTheme.monoFamily
            font.pixelSize: 14
        }
        ScanSweep {
            width: parent.width
        }
    }
}
