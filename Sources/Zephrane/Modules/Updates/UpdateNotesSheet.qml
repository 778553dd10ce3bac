pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Zephrane

// What a new version brings, as plain text, with the key that opens the full notes online.
Rectangle {
    id: root

    required property UpdatesModel model
    property var row: null
    signal closed

    color: Qt.rgba(PainelTheme.deep.r, PainelTheme.deep.g, PainelTheme.deep.b, 0.8)
    MouseArea { anchors.fill: parent }
    onVisibleChanged: if (visible) closeKey.forceActiveFocus()
    Keys.onEscapePressed: root.closed()

    Rectangle {
        objectName: "notesSheet"
        anchors.centerIn: parent
        width: Math.min(parent.width - 48, 560)
        height: Math.min(parent.height - 32, 420)
        radius: 10
        color: PainelTheme.panel
        border.width: 1
        border.color: PainelTheme.border
        Accessible.role: Accessible.Dialog
        Accessible.name: qsTrId("updates.notes.title")

        Column {
            id: top
            anchors { left: parent.left; right: parent.right; top: parent.top; margins: 24 }
            spacing: 6
            MonoLabel { text: qsTrId("updates.notes.title"); tone: MonoLabel.Accent }
            Text {
                width: parent.width
                text: root.row ? root.row.name : ""
                color: PainelTheme.text
                font.family: PainelTheme.sansFamily
                font.pixelSize: 18
                font.weight: Font.DemiBold
                elide: Text.ElideRight
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Text {
                visible: root.row !== null && root.row.language.length > 0
                text: root.row ? qsTrId("updates.notes.language").arg(root.row.language) : ""
                color: PainelTheme.faint
                font.family: PainelTheme.sansFamily
                font.pixelSize: 11
            }
        }
        ScrollView {
            anchors { left: parent.left; right: parent.right; top: top.bottom; bottom: keys.top; margins: 24 }
            clip: true
            Text {
                objectName: "notesText"
                width: parent.width
                text: root.row && root.row.notes.length > 0 ? root.row.notes : qsTrId("updates.notes.empty")
                color: PainelTheme.muted
                font.family: PainelTheme.sansFamily
                font.pixelSize: 13
                wrapMode: Text.WordWrap
                textFormat: Text.PlainText
            }
        }
        Row {
            id: keys
            anchors { right: parent.right; bottom: parent.bottom; margins: 24 }
            spacing: 12
            PainelButton {
                objectName: "openNotesKey"
                visible: root.row !== null && root.row.hasURL
                text: qsTrId("updates.notes.open")
                onClicked: root.model.openNotes(root.row.id)
            }
            PainelButton {
                id: closeKey
                objectName: "closeNotesKey"
                text: qsTrId("updates.notes.close")
                kind: PainelButtonKind.Accent
                onClicked: root.closed()
            }
        }
    }
}
