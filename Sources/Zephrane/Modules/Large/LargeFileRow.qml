pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// One large file: its lamp, name and folder, kind, when it was last used, a meter against the
// largest file on show, its size, and the key that shows it in the file manager. Space turns it on
// or off, Return shows it.
FocusScope {
    id: root

    required property LargeFilesModel large
    required property var columns
    required property int index
    required property string name
    required property string folder
    required property string kindTitle
    required property string lastUsedText
    required property string sizeText
    required property real fraction
    required property bool selected

    implicitHeight: 48
    activeFocusOnTab: true

    Accessible.role: Accessible.CheckBox
    Accessible.name: root.name
    Accessible.description: [root.folder, root.kindTitle, root.lastUsedText, root.sizeText].join(", ")
    Accessible.checkable: true
    Accessible.checked: root.selected
    Accessible.onToggleAction: root.large.toggleRow(root.index)
    Accessible.onPressAction: root.large.toggleRow(root.index)

    Keys.onSpacePressed: root.large.toggleRow(root.index)
    Keys.onReturnPressed: root.large.revealRow(root.index)
    Keys.onEnterPressed: root.large.revealRow(root.index)

    Rectangle {
        id: card
        anchors.fill: parent
        radius: 6
        color: root.selected ? PainelTheme.raised : "transparent"

        MouseArea {
            anchors.fill: parent
            onClicked: { root.forceActiveFocus(); root.large.toggleRow(root.index) }
        }

        Row {
            anchors { fill: parent; leftMargin: 12; rightMargin: 8 }
            spacing: root.columns.spacing

            Item {
                width: root.columns.check
                height: parent.height
                CheckLED {
                    objectName: "fileCheck"
                    anchors.centerIn: parent
                    isOn: root.selected
                    label: root.name
                    // The row takes the pointer and the keys; the lamp only shows.
                    interactive: false
                }
            }
            Column {
                width: parent.width - root.columns.fixedWidth
                anchors.verticalCenter: parent.verticalCenter
                spacing: 2
                Text {
                    width: parent.width
                    text: root.name
                    color: PainelTheme.text
                    font.family: PainelTheme.sansFamily
                    font.pixelSize: 13
                    font.weight: Font.Medium
                    elide: Text.ElideMiddle
                }
                Text {
                    width: parent.width
                    text: root.folder
                    color: PainelTheme.faint
                    font.family: PainelTheme.monoFamily
                    font.pixelSize: 11
                    elide: Text.ElideMiddle
                }
            }
            Text {
                width: root.columns.kind
                anchors.verticalCenter: parent.verticalCenter
                text: root.kindTitle
                color: PainelTheme.muted
                font.family: PainelTheme.sansFamily
                font.pixelSize: 12
                elide: Text.ElideRight
            }
            Text {
                width: root.columns.lastUsed
                anchors.verticalCenter: parent.verticalCenter
                text: root.lastUsedText
                color: PainelTheme.muted
                font.family: PainelTheme.sansFamily
                font.pixelSize: 12
                elide: Text.ElideRight
            }
            LEDMeter {
                width: root.columns.meter
                height: 6
                anchors.verticalCenter: parent.verticalCenter
                fraction: root.fraction
                cells: 16
                tint: root.selected ? LEDMeter.Accent : LEDMeter.Muted
                label: root.name
                valueText: root.sizeText
            }
            Text {
                width: root.columns.size
                anchors.verticalCenter: parent.verticalCenter
                horizontalAlignment: Text.AlignRight
                text: root.sizeText
                color: PainelTheme.text
                font.family: PainelTheme.monoFamily
                font.pixelSize: 13
                font.weight: Font.Medium
            }
            Rectangle {
                id: revealKey
                objectName: "revealKey"
                width: root.columns.reveal
                height: 26
                radius: 5
                anchors.verticalCenter: parent.verticalCenter
                color: revealArea.containsMouse ? PainelTheme.raised : "transparent"
                border.width: 1
                border.color: PainelTheme.divider
                activeFocusOnTab: true
                Accessible.role: Accessible.Button
                Accessible.name: qsTrId("large.row.reveal").arg(root.name)
                Accessible.onPressAction: root.large.revealRow(root.index)
                Keys.onSpacePressed: root.large.revealRow(root.index)
                Keys.onReturnPressed: root.large.revealRow(root.index)
                Text {
                    anchors.centerIn: parent
                    text: "↗"
                    color: PainelTheme.muted
                    font.pixelSize: 13
                }
                MouseArea {
                    id: revealArea
                    anchors.fill: parent
                    hoverEnabled: true
                    onClicked: root.large.revealRow(root.index)
                }
                PainelFocusRing {}
            }
        }
    }

    PainelFocusRing { target: card }
}
