pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// One item of the trash list: its name, when it was put there, its size.
Rectangle {
    id: root

    required property trashRow row
    readonly property int sizeWidth: 96
    readonly property int whenWidth: 150

    implicitHeight: 34
    radius: 4
    color: activeFocus ? PainelTheme.raised : "transparent"
    activeFocusOnTab: true

    Accessible.role: Accessible.ListItem
    Accessible.name: [row.name, row.sizeText, row.when].filter(part => part.length > 0).join(", ")

    Text {
        anchors { left: parent.left; leftMargin: 10; right: when.left; rightMargin: 12; verticalCenter: parent.verticalCenter }
        text: root.row.name
        color: PainelTheme.text
        font.family: PainelTheme.sansFamily
        font.pixelSize: 13
        elide: Text.ElideMiddle
    }
    Text {
        id: when
        anchors { right: size.left; rightMargin: 12; verticalCenter: parent.verticalCenter }
        width: root.whenWidth
        text: root.row.when
        color: PainelTheme.muted
        font.family: PainelTheme.sansFamily
        font.pixelSize: 12
        elide: Text.ElideRight
    }
    Text {
        id: size
        anchors { right: parent.right; rightMargin: 10; verticalCenter: parent.verticalCenter }
        width: root.sizeWidth
        horizontalAlignment: Text.AlignRight
        text: root.row.sizeText
        color: PainelTheme.text
        font.family: PainelTheme.monoFamily
        font.pixelSize: 12
    }

    PainelFocusRing { target: root }
}
