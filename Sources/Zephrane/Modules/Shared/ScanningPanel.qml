pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Zephrane

// A scan under way: how much was found, for how long, which steps are done, what is being read.
Item {
    id: root

    required property ModulePhaseModel model
    readonly property scanProgress progress: model.progress
    property string elapsed: progress.elapsedText()

    Timer {
        interval: 1000
        repeat: true
        running: true
        onTriggered: root.elapsed = root.progress.elapsedText()
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 32
        spacing: 18

        PhaseHeader {
            text: qsTrId("phase.status.scanning")
            tone: PhaseHeader.Accent
            busy: true
        }

        ScanSweep {
            Layout.fillWidth: true
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: 32
            Column {
                spacing: 4
                MonoLabel { text: qsTrId("phase.scan.count"); tone: MonoLabel.Faint }
                LEDNumber {
                    objectName: "foundCount"
                    integer: root.progress.itemCount
                    unit: root.progress.itemCount === 1 ? qsTrId("phase.scan.unit.one") : qsTrId("phase.scan.unit.other")
                    spoken: qsTrId("phase.scan.items").arg(root.progress.itemCountText)
                    size: 56
                }
            }
            Item { Layout.fillWidth: true }
            Column {
                Layout.alignment: Qt.AlignTop
                spacing: 4
                MonoLabel { text: qsTrId("phase.scan.elapsed"); tone: MonoLabel.Faint }
                Text {
                    text: root.elapsed
                    color: PainelTheme.text
                    font.family: PainelTheme.monoFamily
                    font.pixelSize: 28
                    Accessible.role: Accessible.StaticText
                    Accessible.name: qsTrId("phase.scan.elapsed") + " " + text
                }
            }
        }

        Flow {
            Layout.fillWidth: true
            spacing: 8
            Repeater {
                model: root.progress.steps
                delegate: Rectangle {
                    id: tile
                    required property scanStep modelData
                    readonly property string state_: modelData.state
                    width: 168
                    height: 58
                    radius: 6
                    color: PainelTheme.deep
                    border.width: 1
                    border.color: state_ === "scanning" ? PainelTheme.accent : PainelTheme.border
                    Accessible.role: Accessible.StaticText
                    Accessible.name: modelData.title + ", " + modelData.valueText

                    Column {
                        anchors.fill: parent
                        anchors.margins: 10
                        spacing: 6
                        Text {
                            width: parent.width
                            text: tile.modelData.title
                            color: PainelTheme.muted
                            font.family: PainelTheme.sansFamily
                            font.pixelSize: 12
                            elide: Text.ElideRight
                        }
                        Text {
                            width: parent.width
                            text: tile.modelData.valueText
                            color: tile.state_ === "done" ? PainelTheme.text
                                 : tile.state_ === "scanning" ? PainelTheme.accent : PainelTheme.faint
                            font.family: PainelTheme.monoFamily
                            font.pixelSize: 14
                            elide: Text.ElideRight
                        }
                    }
                }
            }
        }

        Column {
            Layout.fillWidth: true
            spacing: 8
            Item {
                width: parent.width
                height: progressLabel.implicitHeight
                MonoLabel { id: progressLabel; text: qsTrId("phase.scan.progress"); tone: MonoLabel.Faint }
                MonoLabel {
                    anchors.right: parent.right
                    text: qsTrId("phase.scan.progress.value").arg(root.progress.doneCount).arg(root.progress.stepCount)
                    tone: MonoLabel.Muted
                }
            }
            LEDMeter {
                objectName: "progressBar"
                width: parent.width
                height: 10
                cells: 40
                tint: LEDMeter.Accent
                fraction: root.progress.stepCount > 0 ? root.progress.doneCount / root.progress.stepCount : 0
                label: qsTrId("phase.scan.progress")
                valueText: qsTrId("phase.scan.progress.value").arg(root.progress.doneCount).arg(root.progress.stepCount)
            }
            Text {
                objectName: "currentPath"
                width: parent.width
                text: root.progress.currentPath
                color: PainelTheme.faint
                font.family: PainelTheme.monoFamily
                font.pixelSize: 11
                elide: Text.ElideMiddle
            }
        }

        Item { Layout.fillHeight: true }

        PainelButton {
            objectName: "stopKey"
            visible: root.model.actions.hasStop
            // The scan key that started the scan is gone with the idle panel: focus lands here.
            focus: true
            text: qsTrId("phase.scan.stop")
            onClicked: root.model.actions.stop()
        }
    }
}
