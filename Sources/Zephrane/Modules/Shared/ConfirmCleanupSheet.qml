pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// Asks before anything is removed: what goes, how much, and where. Removal for good must be held.
Rectangle {
    id: root

    required property ModulePhaseModel model
    required property string confirmNote
    readonly property cleanupSummary summary: model.summary
    readonly property bool forGood: model.destination === "delete"

    // The scrim over the results.
    color: Qt.rgba(PainelTheme.deep.r, PainelTheme.deep.g, PainelTheme.deep.b, 0.8)
    MouseArea { anchors.fill: parent }

    Keys.onEscapePressed: root.model.actions.cancelConfirm()

    Rectangle {
        id: sheet
        objectName: "confirmSheet"
        anchors.centerIn: parent
        width: Math.min(parent.width - 48, 520)
        height: Math.min(parent.height - 32, content.implicitHeight + 48)
        radius: 10
        color: PainelTheme.panel
        border.width: 1
        border.color: PainelTheme.border
        Accessible.role: Accessible.Dialog
        Accessible.name: qsTrId("confirm.title")

        Flickable {
            anchors.fill: parent
            anchors.margins: 24
            contentHeight: content.implicitHeight
            clip: true
            boundsBehavior: Flickable.StopAtBounds

            Column {
                id: content
                width: parent.width
                spacing: 14

                MonoLabel { text: qsTrId("confirm.title"); tone: MonoLabel.Accent }
                Text {
                    width: parent.width
                    text: root.model.confirmQuestion.length > 0 ? root.model.confirmQuestion
                          : root.forGood ? qsTrId("confirm.question.delete") : qsTrId("confirm.question.trash")
                    color: PainelTheme.text
                    font.family: PainelTheme.sansFamily
                    font.pixelSize: 20
                    font.weight: Font.DemiBold
                    wrapMode: Text.WordWrap
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                Text {
                    width: parent.width
                    text: root.forGood ? qsTrId("confirm.body.delete") : qsTrId("confirm.body.trash")
                    color: PainelTheme.muted
                    font.family: PainelTheme.sansFamily
                    font.pixelSize: 13
                    lineHeight: 1.25
                    wrapMode: Text.WordWrap
                }

                Rectangle {
                    width: parent.width
                    height: lines.implicitHeight + 20
                    radius: 6
                    color: PainelTheme.deep
                    Column {
                        id: lines
                        x: 12
                        y: 10
                        width: parent.width - 24
                        spacing: 6
                        Repeater {
                            model: root.summary.lines
                            delegate: Item {
                                id: line
                                required property cleanupLine modelData
                                width: lines.width
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
                                    text: qsTrId("confirm.line").arg(line.modelData.countText).arg(line.modelData.sizeText)
                                    color: PainelTheme.muted
                                    font.family: PainelTheme.monoFamily
                                    font.pixelSize: 12
                                }
                            }
                        }
                        Rectangle { width: parent.width; height: 1; color: PainelTheme.divider }
                        Item {
                            width: lines.width
                            height: totalValue.implicitHeight
                            Accessible.role: Accessible.StaticText
                            Accessible.name: totalLabel.text + ", " + totalValue.text
                            MonoLabel {
                                id: totalLabel
                                anchors.verticalCenter: parent.verticalCenter
                                text: qsTrId("confirm.total")
                                tone: MonoLabel.Normal
                            }
                            Text {
                                id: totalValue
                                anchors.right: parent.right
                                text: qsTrId("confirm.line").arg(root.summary.countText).arg(root.summary.sizeText)
                                color: PainelTheme.text
                                font.family: PainelTheme.monoFamily
                                font.pixelSize: 13
                                font.weight: Font.Medium
                            }
                        }
                    }
                }

                Text {
                    width: parent.width
                    text: qsTrId("confirm.destination").arg(root.model.destinationTitle)
                    color: root.forGood ? PainelTheme.warn : PainelTheme.muted
                    font.family: PainelTheme.monoFamily
                    font.pixelSize: 12
                    wrapMode: Text.WordWrap
                }
                Text {
                    width: parent.width
                    visible: root.confirmNote.length > 0
                    text: root.confirmNote
                    color: PainelTheme.warn
                    font.family: PainelTheme.sansFamily
                    font.pixelSize: 12
                    wrapMode: Text.WordWrap
                }
                Text {
                    width: parent.width
                    text: root.forGood ? qsTrId("confirm.hint.delete") : qsTrId("confirm.hint.trash")
                    color: PainelTheme.faint
                    font.family: PainelTheme.sansFamily
                    font.pixelSize: 12
                    wrapMode: Text.WordWrap
                }

                Row {
                    anchors.right: parent.right
                    spacing: 12
                    PainelButton {
                        objectName: "cancelKey"
                        text: qsTrId("action.cancel")
                        onClicked: root.model.actions.cancelConfirm()
                    }
                    PainelButton {
                        objectName: "confirmKey"
                        visible: !root.forGood
                        text: qsTrId("confirm.clean")
                        kind: PainelButtonKind.Accent
                        focus: !root.forGood
                        onClicked: root.model.actions.confirm()
                    }
                    HoldToConfirmButton {
                        objectName: "holdKey"
                        visible: root.forGood
                        title: qsTrId("confirm.clean")
                        confirmTitle: qsTrId("confirm.clean")
                        confirmMessage: qsTrId("hold.confirm.message")
                        focus: root.forGood
                        onAction: root.model.actions.confirm()
                    }
                }
            }
        }
    }
}
