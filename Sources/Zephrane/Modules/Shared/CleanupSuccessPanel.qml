pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Zephrane

// The report of a finished removal: what was freed, per category, how long it took, and every
// item that could not be removed, with the reason.
Item {
    id: root

    required property ModulePhaseModel model
    readonly property cleanupOutcome outcome: model.outcome
    readonly property bool toTrash: outcome.destination === "trash"
    property bool failuresOpen: false

    Flickable {
        id: flick
        anchors.fill: parent
        anchors.margins: 32
        contentHeight: content.implicitHeight
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        ColumnLayout {
            id: content
            width: flick.width
            spacing: 14

            PhaseHeader { text: qsTrId("success.status"); tone: PhaseHeader.Ok }
            Text {
                Layout.fillWidth: true
                text: qsTrId("success.title")
                color: PainelTheme.text
                font.family: PainelTheme.sansFamily
                font.pixelSize: 26
                font.weight: Font.DemiBold
                wrapMode: Text.WordWrap
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            MonoLabel { text: qsTrId("success.freed"); tone: MonoLabel.Faint }
            LEDNumber {
                objectName: "freedBytes"
                bytes: root.outcome.bytes
                size: 56
                color: PainelTheme.ok
                label: qsTrId("success.freed")
            }
            Text {
                Layout.fillWidth: true
                text: root.model.successBody.length > 0 ? root.model.successBody
                      : root.toTrash ? qsTrId("success.body.trash") : qsTrId("success.body.delete")
                color: PainelTheme.muted
                font.family: PainelTheme.sansFamily
                font.pixelSize: 14
                lineHeight: 1.25
                wrapMode: Text.WordWrap
            }

            // The report.
            Rectangle {
                Layout.fillWidth: true
                implicitHeight: report.implicitHeight + 24
                radius: 6
                color: PainelTheme.deep
                border.width: 1
                border.color: PainelTheme.border
                Column {
                    id: report
                    x: 12
                    y: 12
                    width: parent.width - 24
                    spacing: 6
                    MonoLabel { text: qsTrId("success.report"); tone: MonoLabel.Faint }
                    Repeater {
                        model: root.outcome.lines
                        delegate: Item {
                            id: line
                            required property cleanupLine modelData
                            width: report.width
                            height: lineTitle.implicitHeight
                            Accessible.role: Accessible.StaticText
                            Accessible.name: lineTitle.text + ", " + lineValue.text
                            Text {
                                id: lineTitle
                                width: parent.width - lineValue.implicitWidth - 12
                                text: line.modelData.title
                                color: PainelTheme.text
                                font.family: PainelTheme.sansFamily
                                font.pixelSize: 13
                                elide: Text.ElideRight
                            }
                            Text {
                                id: lineValue
                                anchors.right: parent.right
                                text: qsTrId("success.report.ok").arg(line.modelData.countText).arg(line.modelData.sizeText)
                                color: PainelTheme.ok
                                font.family: PainelTheme.monoFamily
                                font.pixelSize: 12
                            }
                        }
                    }
                    Rectangle { width: parent.width; height: 1; color: PainelTheme.divider }
                    Text {
                        objectName: "reportTime"
                        text: qsTrId("success.report.time").arg(root.outcome.durationText)
                        color: PainelTheme.muted
                        font.family: PainelTheme.monoFamily
                        font.pixelSize: 12
                    }
                }
            }

            // Failures stay in the open, folded to one line until asked for.
            Rectangle {
                objectName: "failures"
                Layout.fillWidth: true
                visible: root.outcome.failureCount > 0
                implicitHeight: failureColumn.implicitHeight + 24
                radius: 6
                color: PainelTheme.deep
                border.width: 1
                border.color: PainelTheme.warn
                Column {
                    id: failureColumn
                    x: 12
                    y: 12
                    width: parent.width - 24
                    spacing: 8
                    Item {
                        width: parent.width
                        height: toggle.implicitHeight
                        Text {
                            anchors.verticalCenter: parent.verticalCenter
                            width: parent.width - toggle.width - 12
                            text: qsTrId("success.failures").arg(root.outcome.failureCountText)
                            color: PainelTheme.warn
                            font.family: PainelTheme.sansFamily
                            font.pixelSize: 13
                            font.weight: Font.Medium
                            wrapMode: Text.WordWrap
                        }
                        PainelButton {
                            id: toggle
                            objectName: "failuresToggle"
                            anchors.right: parent.right
                            size: PainelButtonSize.Small
                            text: root.failuresOpen ? qsTrId("success.failures.expanded") : qsTrId("success.failures.collapsed")
                            onClicked: root.failuresOpen = !root.failuresOpen
                        }
                    }
                    Repeater {
                        model: root.failuresOpen ? root.outcome.failures : []
                        delegate: Column {
                            id: failure
                            required property cleanupFailure modelData
                            width: failureColumn.width
                            spacing: 2
                            Accessible.role: Accessible.StaticText
                            Accessible.name: modelData.name + ": " + modelData.reason
                            Text {
                                width: parent.width
                                text: failure.modelData.name
                                color: PainelTheme.text
                                font.family: PainelTheme.monoFamily
                                font.pixelSize: 12
                                elide: Text.ElideMiddle
                            }
                            Text {
                                width: parent.width
                                text: failure.modelData.reason
                                color: PainelTheme.muted
                                font.family: PainelTheme.sansFamily
                                font.pixelSize: 12
                                wrapMode: Text.WordWrap
                            }
                        }
                    }
                }
            }

            Row {
                spacing: 12
                topPadding: 4
                PainelButton {
                    objectName: "doneKey"
                    text: qsTrId("success.done")
                    kind: PainelButtonKind.Accent
                    focus: true
                    onClicked: root.model.actions.done()
                }
                PainelButton {
                    objectName: "emptyTrashKey"
                    visible: root.toTrash && root.model.actions.hasEmptyTrash
                    text: qsTrId("success.emptyTrash")
                    onClicked: root.model.actions.emptyTrash()
                }
            }
        }
    }
}
