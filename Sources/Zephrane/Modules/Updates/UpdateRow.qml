pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Zephrane

// One outdated app: its lamp (only for what installs here), name, versions, where the new version
// comes from, and its key or what is happening to it. Space ticks, Return does the row's action,
// N shows the notes, I ignores this version.
FocusScope {
    id: root

    required property UpdatesModel updates
    required property var columns
    required property string updateID
    required property string name
    required property string currentVersion
    required property string newVersion
    required property string sourceTitle
    required property string actionText
    required property string stateKind
    required property string stateText
    required property bool isSelectable
    required property bool isSelected
    required property string notesSummary

    signal showNotes

    implicitHeight: 52
    activeFocusOnTab: true

    Accessible.role: Accessible.ListItem
    Accessible.name: root.name
    Accessible.description: [root.currentVersion + " → " + root.newVersion, root.sourceTitle,
                             root.stateKind === "idle" ? root.actionText : root.stateText].join(", ")

    Keys.onSpacePressed: if (root.isSelectable) root.updates.toggleSelected(root.updateID)
    Keys.onReturnPressed: if (root.stateKind === "idle") root.updates.perform(root.updateID)
    Keys.onEnterPressed: if (root.stateKind === "idle") root.updates.perform(root.updateID)
    Keys.onMenuPressed: rowMenu.popup()
    Keys.onPressed: event => {
        if (event.key === Qt.Key_N) { root.showNotes(); event.accepted = true }
        else if (event.key === Qt.Key_I) { root.updates.ignore(root.updateID); event.accepted = true }
    }

    Rectangle {
        anchors.fill: parent
        radius: 6
        color: root.activeFocus ? PainelTheme.raised : "transparent"
        TapHandler {
            acceptedButtons: Qt.RightButton
            onTapped: { root.forceActiveFocus(); rowMenu.popup() }
        }
        TapHandler {
            acceptedButtons: Qt.LeftButton
            onTapped: root.forceActiveFocus()
        }
        Menu {
            id: rowMenu
            MenuItem { text: qsTrId("updates.menu.notes"); onTriggered: root.showNotes() }
            MenuItem { text: qsTrId("updates.menu.ignore"); onTriggered: root.updates.ignore(root.updateID) }
        }

        Row {
            anchors { fill: parent; leftMargin: 12; rightMargin: 8 }
            spacing: root.columns.spacing

            Item {
                width: root.columns.check
                height: parent.height
                CheckLED {
                    objectName: "updateCheck"
                    anchors.centerIn: parent
                    visible: root.isSelectable || root.isSelected
                    isOn: root.isSelected
                    label: root.name
                    interactive: root.isSelectable
                    activeFocusOnTab: false
                    onToggled: root.updates.toggleSelected(root.updateID)
                    TapHandler { onTapped: if (root.isSelectable) root.updates.toggleSelected(root.updateID) }
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
                    elide: Text.ElideRight
                }
                Text {
                    width: parent.width
                    visible: text.length > 0
                    text: root.notesSummary
                    color: PainelTheme.faint
                    font.family: PainelTheme.sansFamily
                    font.pixelSize: 11
                    elide: Text.ElideRight
                }
            }
            Text {
                width: root.columns.version
                anchors.verticalCenter: parent.verticalCenter
                text: root.currentVersion + " → " + root.newVersion
                color: PainelTheme.muted
                font.family: PainelTheme.monoFamily
                font.pixelSize: 12
                elide: Text.ElideMiddle
            }
            Text {
                width: root.columns.source
                anchors.verticalCenter: parent.verticalCenter
                text: root.sourceTitle
                color: PainelTheme.muted
                font.family: PainelTheme.sansFamily
                font.pixelSize: 12
                elide: Text.ElideRight
            }
            Item {
                width: root.columns.action
                height: parent.height
                PainelButton {
                    objectName: "actionKey"
                    anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                    visible: root.stateKind === "idle"
                    text: root.actionText
                    size: PainelButtonSize.Small
                    enabled: !root.updates.isBusy || root.actionText !== qsTrId("updates.action.install")
                    onClicked: root.updates.perform(root.updateID)
                }
                Text {
                    objectName: "stateText"
                    anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                    width: parent.width
                    horizontalAlignment: Text.AlignRight
                    visible: root.stateKind !== "idle"
                    text: root.stateText
                    color: root.stateKind === "failed" || root.stateKind === "needsQuit" ? PainelTheme.warn
                           : root.stateKind === "installed" ? PainelTheme.ok : PainelTheme.muted
                    font.family: PainelTheme.monoFamily
                    font.pixelSize: 11
                    wrapMode: Text.WordWrap
                    maximumLineCount: 2
                    elide: Text.ElideRight
                }
            }
        }
    }

    PainelFocusRing {}
}
