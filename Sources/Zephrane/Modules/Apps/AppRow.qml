pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// One installed app: its icon (a blank tile when it has none), name, version and kind, and what it
// takes with its leftovers. Pressing it puts it in the detail pane.
Item {
    id: root

    required property string path
    required property string name
    required property string detail
    required property string sizeText
    required property string icon
    required property bool isSelected
    required property bool isRunning

    signal pressed

    implicitHeight: 52
    Accessible.role: Accessible.ListItem
    Accessible.name: root.name
    Accessible.description: root.detail + ", " + root.sizeText
    Accessible.selected: root.isSelected
    Accessible.onPressAction: root.pressed()

    Rectangle {
        anchors.fill: parent
        radius: 6
        color: root.isSelected ? PainelTheme.raised : "transparent"
        border.width: root.isSelected ? 1 : 0
        border.color: PainelTheme.border
    }

    MouseArea {
        anchors.fill: parent
        onClicked: root.pressed()
    }

    Rectangle {
        id: tile
        anchors { left: parent.left; leftMargin: 10; verticalCenter: parent.verticalCenter }
        width: 32
        height: 32
        radius: 7
        color: PainelTheme.deep
        border.width: image.status === Image.Ready ? 0 : 1
        border.color: PainelTheme.divider
        Image {
            id: image
            objectName: "appIcon"
            anchors.fill: parent
            source: root.icon
            sourceSize: Qt.size(64, 64)
            asynchronous: true
            fillMode: Image.PreserveAspectFit
            visible: root.icon.length > 0
        }
        Text {
            anchors.centerIn: parent
            visible: image.status !== Image.Ready
            text: root.name.length > 0 ? root.name[0].toUpperCase() : ""
            color: PainelTheme.faint
            font.family: PainelTheme.sansFamily
            font.pixelSize: 15
            font.weight: Font.DemiBold
        }
    }

    Column {
        anchors { left: tile.right; leftMargin: 12; right: size.left; rightMargin: 10; verticalCenter: parent.verticalCenter }
        spacing: 3
        Row {
            width: parent.width
            spacing: 8
            Text {
                width: Math.min(implicitWidth, parent.width - (runningLamp.visible ? runningLamp.width + 8 : 0))
                text: root.name
                color: PainelTheme.text
                font.family: PainelTheme.sansFamily
                font.pixelSize: 14
                font.weight: Font.Medium
                elide: Text.ElideRight
            }
            Rectangle {
                id: runningLamp
                objectName: "runningLamp"
                visible: root.isRunning
                anchors.verticalCenter: parent.verticalCenter
                width: 7
                height: 7
                radius: 3.5
                color: PainelTheme.ok
            }
        }
        Text {
            width: parent.width
            text: root.detail
            color: PainelTheme.faint
            font.family: PainelTheme.monoFamily
            font.pixelSize: 11
            elide: Text.ElideRight
        }
    }

    Text {
        id: size
        anchors { right: parent.right; rightMargin: 10; verticalCenter: parent.verticalCenter }
        text: root.sizeText
        color: root.isSelected ? PainelTheme.text : PainelTheme.muted
        font.family: PainelTheme.monoFamily
        font.pixelSize: 12
    }
}
