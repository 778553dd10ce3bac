pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Zephrane

// What a junk scan found: the total, one row per category with items, and the bar that cleans the
// selection. Which rows are open is the view's own business.
FocusScope {
    id: root

    required property SystemJunkModel model
    property var expanded: ({})

    function toggleExpanded(ruleId) {
        const next = Object.assign({}, expanded)
        if (next[ruleId])
            delete next[ruleId]
        else
            next[ruleId] = true
        expanded = next
    }

    Row {
        id: header
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: 32 }
        spacing: 24

        Column {
            width: parent.width - found.width - parent.spacing
            anchors.bottom: parent.bottom
            spacing: 6
            Text {
                width: parent.width
                text: qsTrId("channel.junk.title")
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
                text: qsTrId("junk.summary")
                color: PainelTheme.muted
                font.family: PainelTheme.sansFamily
                font.pixelSize: 13
                wrapMode: Text.WordWrap
            }
        }
        Column {
            id: found
            spacing: 6
            MonoLabel {
                anchors.right: parent.right
                text: qsTrId("junk.found")
                tone: MonoLabel.Accent
            }
            LEDNumber {
                objectName: "foundBytes"
                anchors.right: parent.right
                bytes: root.model.foundBytes
                size: 40
                label: qsTrId("junk.found")
            }
        }
    }

    MonoLabel {
        id: sectionLabel
        anchors { left: parent.left; top: header.bottom; leftMargin: 32; topMargin: 22 }
        text: qsTrId("junk.categories")
        tone: MonoLabel.Faint
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    ListView {
        id: rows
        objectName: "junkRows"
        anchors { left: parent.left; right: parent.right; top: sectionLabel.bottom; bottom: actionBar.top
                  leftMargin: 24; rightMargin: 24; topMargin: 8; bottomMargin: 8 }
        clip: true
        spacing: 6
        focus: true
        keyNavigationEnabled: true
        model: root.model.categories
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar { policy: ScrollBar.AsNeeded }

        delegate: JunkCategoryRow {
            required property int index
            objectName: "junkRow-" + ruleId
            width: rows.width
            junk: root.model
            isExpanded: root.expanded[ruleId] === true
            focus: ListView.isCurrentItem
            onToggle: root.model.toggleGroup(ruleId)
            onExpand: root.toggleExpanded(ruleId)
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

        Column {
            anchors { left: parent.left; leftMargin: 32; verticalCenter: parent.verticalCenter }
            width: parent.width - controls.width - 96
            spacing: 4
            Text {
                objectName: "selectedText"
                width: parent.width
                text: root.model.selectedText
                color: PainelTheme.text
                font.family: PainelTheme.monoFamily
                font.pixelSize: 15
                font.weight: Font.Medium
                elide: Text.ElideRight
            }
            Text {
                width: parent.width
                text: root.model.selectedDetail
                color: PainelTheme.muted
                font.family: PainelTheme.sansFamily
                font.pixelSize: 12
                elide: Text.ElideRight
            }
        }

        Row {
            id: controls
            anchors { right: parent.right; rightMargin: 32; verticalCenter: parent.verticalCenter }
            spacing: 20

            DestinationPicker {
                anchors.verticalCenter: parent.verticalCenter
                model: root.model
                title: qsTrId("junk.destination")
            }
            PainelButton {
                objectName: "cleanKey"
                anchors.verticalCenter: parent.verticalCenter
                text: qsTrId("junk.clean")
                kind: PainelButtonKind.Accent
                enabled: root.model.selection.count > 0
                onClicked: root.model.confirming = true
            }
        }
    }
}
