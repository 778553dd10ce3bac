pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// A removal under way: what is being cleaned, and how much.
Item {
    id: root

    required property ModulePhaseModel model
    required property string channelTitle
    readonly property var summary: model.summary

    Column {
        anchors.fill: parent
        anchors.margins: 32
        spacing: 16

        PhaseStatus { text: qsTrId("phase.status.cleaning"); tone: PhaseStatus.Accent }
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
        PhaseBigNumber {
            objectName: "cleaningBytes"
            number: root.summary.size.number
            unit: root.summary.size.unit
            spoken: root.summary.size.spoken
            color: PainelTheme.accent
        }
        Text {
            text: root.model.countText(root.summary.count)
            color: PainelTheme.muted
            font.family: PainelTheme.monoFamily
            font.pixelSize: 14
        }
        Rectangle {
            width: parent.width
            height: 8
            radius: 2
            color: PainelTheme.ledOff
            clip: true
            Rectangle {
                id: sweep
                width: parent.width / 4
                height: parent.height
                radius: 2
                color: PainelTheme.accent
                XAnimator on x {
                    from: -sweep.width
                    to: sweep.parent.width
                    duration: 1400
                    loops: Animation.Infinite
                    running: !PainelTheme.reducedMotion
                }
            }
        }
    }
}
