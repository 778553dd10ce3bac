pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// One category of junk: its lamp, title, tag, size and meter; opened, the items with lamps of their
// own. Space turns the category on or off, Return or the arrows open and close it.
FocusScope {
    id: root

    required property SystemJunkModel junk
    required property string ruleId
    required property string title
    required property string summary
    required property string sizeText
    required property string countText
    required property bool isOn
    required property bool isMixed
    required property real fraction
    required property string tag
    required property CleanupItemList items
    property bool isExpanded: false
    readonly property real radius: 8

    signal toggle
    signal expand

    implicitHeight: card.height
    activeFocusOnTab: true

    Accessible.role: Accessible.CheckBox
    Accessible.name: root.title
    Accessible.description: [qsTrId("junk.category.items").arg(root.countText),
                             root.isMixed ? qsTrId("junk.category.mixed") : "", root.sizeText]
                            .filter(part => part.length > 0).join(", ")
    Accessible.checkable: true
    Accessible.checked: root.isOn
    Accessible.checkStateMixed: root.isMixed
    Accessible.onToggleAction: root.toggle()
    Accessible.onPressAction: root.toggle()

    Keys.onSpacePressed: root.toggle()
    Keys.onReturnPressed: root.expand()
    Keys.onEnterPressed: root.expand()
    Keys.onRightPressed: if (!root.isExpanded) root.expand()
    Keys.onLeftPressed: if (root.isExpanded) root.expand()

    Rectangle {
        id: card
        width: parent.width
        height: head.height + (root.isExpanded ? itemList.height + 8 : 0)
        radius: root.radius
        color: PainelTheme.panel
        border.width: 1
        border.color: root.isOn || root.isMixed ? PainelTheme.border : PainelTheme.divider

        Item {
            id: head
            width: parent.width
            height: 64

            MouseArea {
                anchors.fill: parent
                onClicked: { root.forceActiveFocus(); root.expand() }
            }

            Text {
                id: chevron
                objectName: "disclosure"
                anchors { left: parent.left; leftMargin: 14; verticalCenter: parent.verticalCenter }
                width: 12
                text: root.isExpanded ? "▾" : "▸"
                color: PainelTheme.faint
                font.pixelSize: 13
                Accessible.role: Accessible.Button
                Accessible.name: root.isExpanded ? qsTrId("junk.category.collapse") : qsTrId("junk.category.expand")
                Accessible.onPressAction: root.expand()
            }

            CheckLED {
                id: lamp
                objectName: "categoryCheck"
                anchors { left: chevron.right; leftMargin: 10; verticalCenter: parent.verticalCenter }
                isOn: root.isOn
                isMixed: root.isMixed
                label: root.title
                activeFocusOnTab: false
                onToggled: root.toggle()
                MouseArea {
                    anchors.fill: parent
                    anchors.margins: -6
                    onClicked: { root.forceActiveFocus(); root.toggle() }
                }
            }

            Column {
                anchors { left: lamp.right; leftMargin: 14; right: figures.left; rightMargin: 16
                          verticalCenter: parent.verticalCenter }
                spacing: 4
                Row {
                    width: parent.width
                    spacing: 10
                    Text {
                        id: titleText
                        width: Math.min(implicitWidth, parent.width - (tagChip.visible ? tagChip.width + 10 : 0))
                        text: root.title
                        color: PainelTheme.text
                        font.family: PainelTheme.sansFamily
                        font.pixelSize: 15
                        font.weight: Font.Medium
                        elide: Text.ElideRight
                    }
                    Rectangle {
                        id: tagChip
                        objectName: "reviewTag"
                        visible: root.tag.length > 0
                        anchors.verticalCenter: titleText.verticalCenter
                        width: tagText.implicitWidth + 12
                        height: 18
                        radius: 4
                        color: "transparent"
                        border.width: 1
                        border.color: PainelTheme.warn
                        MonoLabel {
                            id: tagText
                            anchors.centerIn: parent
                            text: root.tag.length > 0 ? qsTrId(root.tag) : ""
                            tone: MonoLabel.Warn
                        }
                    }
                }
                Text {
                    width: parent.width
                    text: root.summary
                    color: PainelTheme.muted
                    font.family: PainelTheme.sansFamily
                    font.pixelSize: 12
                    elide: Text.ElideRight
                }
            }

            Column {
                id: figures
                anchors { right: parent.right; rightMargin: 16; verticalCenter: parent.verticalCenter }
                width: 128
                spacing: 7
                Text {
                    anchors.right: parent.right
                    text: root.sizeText
                    color: PainelTheme.text
                    font.family: PainelTheme.monoFamily
                    font.pixelSize: 14
                    font.weight: Font.Medium
                }
                LEDMeter {
                    width: parent.width
                    height: 6
                    fraction: root.fraction
                    cells: 24
                    tint: root.isOn || root.isMixed ? LEDMeter.Accent : LEDMeter.Muted
                    label: root.title
                    valueText: root.sizeText
                }
            }
        }

        Column {
            id: itemList
            objectName: "itemList"
            visible: root.isExpanded
            anchors { left: parent.left; right: parent.right; top: head.bottom; leftMargin: 36; rightMargin: 16 }

            Repeater {
                model: root.isExpanded ? root.items : null
                delegate: Item {
                    id: itemRow
                    required property string path
                    required property string name
                    required property string sizeText
                    required property string subtitle
                    required property bool hasNote
                    required property bool selected
                    width: itemList.width
                    height: 42

                    Rectangle {
                        anchors { left: parent.left; right: parent.right; top: parent.top }
                        height: 1
                        color: PainelTheme.divider
                    }
                    CheckLED {
                        id: itemLamp
                        objectName: "itemCheck"
                        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
                        isOn: itemRow.selected
                        label: itemRow.name
                        onToggled: root.junk.selection.setSelected(itemRow.path, !itemRow.selected)
                        PainelFocusRing {}
                        MouseArea {
                            anchors.fill: parent
                            anchors.margins: -6
                            onClicked: root.junk.selection.setSelected(itemRow.path, !itemRow.selected)
                        }
                    }
                    Column {
                        anchors { left: itemLamp.right; leftMargin: 14; right: itemSize.left; rightMargin: 16
                                  verticalCenter: parent.verticalCenter }
                        spacing: 2
                        Text {
                            width: parent.width
                            text: itemRow.name
                            color: PainelTheme.text
                            font.family: PainelTheme.sansFamily
                            font.pixelSize: 13
                            elide: Text.ElideMiddle
                        }
                        Text {
                            width: parent.width
                            text: itemRow.subtitle
                            color: itemRow.hasNote ? PainelTheme.warn : PainelTheme.faint
                            font.family: PainelTheme.monoFamily
                            font.pixelSize: 11
                            elide: Text.ElideMiddle
                        }
                    }
                    Text {
                        id: itemSize
                        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                        text: itemRow.sizeText
                        color: PainelTheme.muted
                        font.family: PainelTheme.monoFamily
                        font.pixelSize: 12
                    }
                }
            }
        }
    }

    PainelFocusRing { target: card }
}
