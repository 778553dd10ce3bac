pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Zephrane

// What the trash holds: the total, the home trash's items (the first hundred and a count of the
// rest), what each volume's trash holds, a word on what emptying means, and the key that empties,
// which must be held.
FocusScope {
    id: root

    required property TrashModel model

    // The size panel.
    Row {
        id: header
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: 32 }
        spacing: 24

        Column {
            width: parent.width - total.width - parent.spacing
            anchors.bottom: parent.bottom
            spacing: 6
            Text {
                width: parent.width
                text: qsTrId("channel.trash.title")
                color: PainelTheme.text
                font.family: PainelTheme.sansFamily
                font.pixelSize: 26
                font.weight: Font.DemiBold
                elide: Text.ElideRight
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Text {
                width: parent.width
                text: qsTrId("trash.size.caption")
                color: PainelTheme.muted
                font.family: PainelTheme.sansFamily
                font.pixelSize: 13
                wrapMode: Text.WordWrap
            }
        }
        Column {
            id: total
            spacing: 6
            MonoLabel {
                anchors.right: parent.right
                text: qsTrId("trash.size")
                tone: MonoLabel.Accent
            }
            LEDNumber {
                objectName: "trashBytes"
                anchors.right: parent.right
                bytes: root.model.foundBytes
                size: 40
                label: qsTrId("trash.size")
            }
            Text {
                objectName: "trashCount"
                anchors.right: parent.right
                text: root.model.itemsText
                color: PainelTheme.muted
                font.family: PainelTheme.monoFamily
                font.pixelSize: 12
            }
        }
    }

    RowLayout {
        anchors { left: parent.left; right: parent.right; top: header.bottom; bottom: actionBar.top
                  leftMargin: 24; rightMargin: 24; topMargin: 18; bottomMargin: 16 }
        spacing: 16

        // The list panel.
        Rectangle {
            Layout.fillWidth: true
            Layout.fillHeight: true
            radius: 6
            color: PainelTheme.deep
            border.width: 1
            border.color: PainelTheme.border

            MonoLabel {
                id: listLabel
                anchors { left: parent.left; top: parent.top; leftMargin: 12; topMargin: 12 }
                text: qsTrId("trash.list")
                tone: MonoLabel.Faint
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            // The column headings sit where the rows' texts do.
            Item {
                id: columns
                anchors { left: parent.left; right: parent.right; top: listLabel.bottom; margins: 8; topMargin: 8 }
                height: nameHeading.implicitHeight
                MonoLabel { id: nameHeading; x: 10; text: qsTrId("trash.list.header.name") }
                MonoLabel {
                    anchors.right: parent.right
                    anchors.rightMargin: 10 + 96 + 12
                    width: 150
                    text: qsTrId("trash.list.header.added")
                }
                MonoLabel {
                    anchors.right: parent.right
                    anchors.rightMargin: 10
                    text: qsTrId("trash.list.header.size")
                }
            }
            Rectangle {
                id: rule
                anchors { left: parent.left; right: parent.right; top: columns.bottom; margins: 12; topMargin: 6 }
                height: 1
                color: PainelTheme.divider
            }

            // The items beyond the first hundred, counted on a last row.
            Text {
                id: rest
                objectName: "trashRest"
                anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: 8 }
                visible: root.model.restCount > 0
                height: visible ? 34 : 0
                leftPadding: 10
                verticalAlignment: Text.AlignVCenter
                text: root.model.restText
                color: PainelTheme.muted
                font.family: PainelTheme.sansFamily
                font.pixelSize: 12
                font.italic: true
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            ListView {
                id: list
                objectName: "trashRows"
                anchors { left: parent.left; right: parent.right; top: rule.bottom; bottom: rest.top
                          margins: 8; topMargin: 4; bottomMargin: 0 }
                clip: true
                focus: true
                keyNavigationEnabled: true
                boundsBehavior: Flickable.StopAtBounds
                model: root.model.rows
                ScrollBar.vertical: ScrollBar { policy: ScrollBar.AsNeeded }
                Accessible.role: Accessible.List
                Accessible.name: qsTrId("trash.list")

                delegate: TrashItemRow {
                    required property trashRow modelData
                    required property int index
                    width: list.width
                    row: modelData
                    focus: ListView.isCurrentItem
                }
            }
        }

        ColumnLayout {
            Layout.preferredWidth: 300
            Layout.maximumWidth: 300
            Layout.fillHeight: true
            spacing: 16

            // The bins panel.
            Rectangle {
                Layout.fillWidth: true
                implicitHeight: bins.implicitHeight + 24
                radius: 6
                color: PainelTheme.deep
                border.width: 1
                border.color: PainelTheme.border
                Column {
                    id: bins
                    x: 12
                    y: 12
                    width: parent.width - 24
                    spacing: 8
                    MonoLabel {
                        text: qsTrId("trash.bins")
                        tone: MonoLabel.Faint
                        Accessible.role: Accessible.Heading
                        Accessible.name: text
                    }
                    Repeater {
                        model: [root.model.startup].concat(root.model.otherVolumes)
                        delegate: Item {
                            id: volume
                            required property volumeTrash modelData
                            width: bins.width
                            height: volumeName.implicitHeight + volumeCount.implicitHeight
                            Accessible.role: Accessible.StaticText
                            Accessible.name: [modelData.name, modelData.sizeText, modelData.countText].join(", ")
                            Text {
                                id: volumeName
                                width: parent.width - volumeSize.implicitWidth - 12
                                text: volume.modelData.name
                                color: PainelTheme.text
                                font.family: PainelTheme.sansFamily
                                font.pixelSize: 13
                                elide: Text.ElideRight
                            }
                            Text {
                                id: volumeSize
                                anchors.right: parent.right
                                text: volume.modelData.sizeText
                                color: PainelTheme.text
                                font.family: PainelTheme.monoFamily
                                font.pixelSize: 12
                            }
                            Text {
                                id: volumeCount
                                anchors.top: volumeName.bottom
                                text: volume.modelData.countText
                                color: PainelTheme.faint
                                font.family: PainelTheme.monoFamily
                                font.pixelSize: 11
                            }
                        }
                    }
                    Text {
                        width: parent.width
                        text: qsTrId("trash.bins.others.note")
                        color: PainelTheme.muted
                        font.family: PainelTheme.sansFamily
                        font.pixelSize: 12
                        wrapMode: Text.WordWrap
                    }
                    Rectangle { width: parent.width; height: 1; color: PainelTheme.divider }
                    Text {
                        width: parent.width
                        text: qsTrId("trash.bins.photos")
                        color: PainelTheme.text
                        font.family: PainelTheme.sansFamily
                        font.pixelSize: 12
                        font.weight: Font.Medium
                        wrapMode: Text.WordWrap
                    }
                    Text {
                        width: parent.width
                        text: qsTrId("trash.bins.photos.where")
                        color: PainelTheme.muted
                        font.family: PainelTheme.sansFamily
                        font.pixelSize: 12
                        wrapMode: Text.WordWrap
                    }
                }
            }

            // The warning panel.
            Rectangle {
                Layout.fillWidth: true
                implicitHeight: warning.implicitHeight + 24
                radius: 6
                color: PainelTheme.deep
                border.width: 1
                border.color: PainelTheme.warn
                Accessible.role: Accessible.AlertMessage
                Accessible.name: qsTrId("trash.warning.title")
                Column {
                    id: warning
                    x: 12
                    y: 12
                    width: parent.width - 24
                    spacing: 6
                    Text {
                        width: parent.width
                        text: qsTrId("trash.warning.title")
                        color: PainelTheme.warn
                        font.family: PainelTheme.sansFamily
                        font.pixelSize: 13
                        font.weight: Font.DemiBold
                        wrapMode: Text.WordWrap
                    }
                    Text {
                        width: parent.width
                        text: qsTrId("trash.warning.body")
                        color: PainelTheme.muted
                        font.family: PainelTheme.sansFamily
                        font.pixelSize: 12
                        lineHeight: 1.2
                        wrapMode: Text.WordWrap
                    }
                }
            }
            Item { Layout.fillHeight: true }
        }
    }

    Rectangle {
        id: actionBar
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: 76
        color: PainelTheme.panel

        Rectangle {
            anchors { left: parent.left; right: parent.right; top: parent.top }
            height: 1
            color: PainelTheme.divider
        }
        Text {
            anchors { left: parent.left; leftMargin: 32; right: emptyKey.left; rightMargin: 24
                      verticalCenter: parent.verticalCenter }
            text: qsTrId("trash.empty.hold")
            color: PainelTheme.muted
            font.family: PainelTheme.sansFamily
            font.pixelSize: 12
            wrapMode: Text.WordWrap
        }
        HoldToConfirmButton {
            id: emptyKey
            objectName: "emptyKey"
            anchors { right: parent.right; rightMargin: 32; verticalCenter: parent.verticalCenter }
            title: qsTrId("trash.empty.key")
            confirmTitle: qsTrId("trash.empty.confirm.title")
            confirmAction: qsTrId("trash.empty.action")
            confirmMessage: root.model.confirmMessage
            enabled: root.model.itemCount > 0
            onAction: root.model.startEmptying()
        }
    }
}
