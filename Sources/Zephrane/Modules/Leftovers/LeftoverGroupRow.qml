pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// One identifier's leftovers: its box (mixed when some items are ticked), the identifier, the item
// count and size; opened, the items with boxes of their own. Space ticks, Return or the arrows open.
FocusScope {
    id: root

    required property LeftoversModel leftovers
    required property string bundleID
    required property string countText
    required property string sizeText
    required property bool isOn
    required property bool isMixed
    required property CleanupItemList items
    property bool isExpanded: false

    signal toggle
    signal expand

    implicitHeight: card.height
    activeFocusOnTab: true

    Accessible.role: Accessible.CheckBox
    Accessible.name: root.bundleID
    Accessible.description: [qsTrId("leftovers.group.items").arg(root.countText),
                             root.isMixed ? qsTrId("leftovers.group.mixed") : "", root.sizeText]
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
        radius: 8
        color: PainelTheme.panel
        border.width: 1
        border.color: root.isOn || root.isMixed ? PainelTheme.border : PainelTheme.divider

        Item {
            id: head
            width: parent.width
            height: 56

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
                Accessible.name: root.isExpanded ? qsTrId("leftovers.group.collapse") : qsTrId("leftovers.group.expand")
                Accessible.onPressAction: root.expand()
            }
            CheckLED {
                id: lamp
                objectName: "groupCheck"
                anchors { left: chevron.right; leftMargin: 10; verticalCenter: parent.verticalCenter }
                isOn: root.isOn
                isMixed: root.isMixed
                label: root.bundleID
                activeFocusOnTab: false
                onToggled: root.toggle()
                MouseArea {
                    anchors.fill: parent
                    anchors.margins: -6
                    onClicked: { root.forceActiveFocus(); root.toggle() }
                }
            }
            Column {
                anchors { left: lamp.right; leftMargin: 14; right: size.left; rightMargin: 16; verticalCenter: parent.verticalCenter }
                spacing: 4
                Text {
                    width: parent.width
                    text: root.bundleID
                    color: PainelTheme.text
                    font.family: PainelTheme.monoFamily
                    font.pixelSize: 14
                    font.weight: Font.Medium
                    elide: Text.ElideRight
                }
                Text {
                    width: parent.width
                    text: qsTrId("leftovers.group.items").arg(root.countText)
                          + (root.isMixed ? " · " + qsTrId("leftovers.group.mixed") : "")
                    color: PainelTheme.muted
                    font.family: PainelTheme.sansFamily
                    font.pixelSize: 12
                    elide: Text.ElideRight
                }
            }
            Text {
                id: size
                anchors { right: parent.right; rightMargin: 16; verticalCenter: parent.verticalCenter }
                text: root.sizeText
                color: PainelTheme.text
                font.family: PainelTheme.monoFamily
                font.pixelSize: 14
                font.weight: Font.Medium
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
                        onToggled: root.leftovers.selection.setSelected(itemRow.path, !itemRow.selected)
                        PainelFocusRing {}
                        MouseArea {
                            anchors.fill: parent
                            anchors.margins: -6
                            onClicked: root.leftovers.selection.setSelected(itemRow.path, !itemRow.selected)
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
                            color: PainelTheme.faint
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
