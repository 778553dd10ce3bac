pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Zephrane

// The groups of files no installed app claims, none ticked to begin with, and the bar that removes
// the ticked ones. Which groups are open is the view's own business.
FocusScope {
    id: root

    required property LeftoversModel model
    property var expanded: ({})

    function toggleExpanded(id) {
        const next = Object.assign({}, expanded)
        if (next[id])
            delete next[id]
        else
            next[id] = true
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
                text: root.model.appsText
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
                text: qsTrId("leftovers.summary.detail")
                color: PainelTheme.muted
                font.family: PainelTheme.sansFamily
                font.pixelSize: 13
                wrapMode: Text.WordWrap
            }
            Text {
                objectName: "partialNote"
                width: parent.width
                visible: root.model.isPartial
                text: qsTrId("leftovers.partial")
                color: PainelTheme.warn
                font.family: PainelTheme.sansFamily
                font.pixelSize: 12
                wrapMode: Text.WordWrap
            }
        }
        Column {
            id: found
            spacing: 6
            MonoLabel {
                anchors.right: parent.right
                text: qsTrId("leftovers.found")
                tone: MonoLabel.Accent
            }
            LEDNumber {
                anchors.right: parent.right
                bytes: root.model.foundBytes
                size: 40
                label: qsTrId("leftovers.found")
            }
        }
    }

    MonoLabel {
        id: sectionLabel
        anchors { left: parent.left; top: header.bottom; leftMargin: 32; topMargin: 22 }
        text: qsTrId("leftovers.groups")
        tone: MonoLabel.Faint
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    ListView {
        id: rows
        objectName: "leftoverRows"
        anchors { left: parent.left; right: parent.right; top: sectionLabel.bottom; bottom: bar.top
                  leftMargin: 24; rightMargin: 24; topMargin: 8; bottomMargin: 8 }
        clip: true
        spacing: 6
        focus: true
        keyNavigationEnabled: true
        model: root.model.groups
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar { policy: ScrollBar.AsNeeded }

        delegate: LeftoverGroupRow {
            required property int index
            objectName: "leftoverRow-" + bundleID
            width: rows.width
            leftovers: root.model
            isExpanded: root.expanded[bundleID] === true
            focus: ListView.isCurrentItem
            onToggle: root.model.toggleGroup(bundleID)
            onExpand: root.toggleExpanded(bundleID)
        }
    }

    Rectangle {
        id: bar
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: 76
        color: PainelTheme.panel

        Rectangle {
            anchors { left: parent.left; right: parent.right; top: parent.top }
            height: 1
            color: PainelTheme.divider
        }
        Column {
            anchors { left: parent.left; leftMargin: 32; right: controls.left; rightMargin: 16; verticalCenter: parent.verticalCenter }
            spacing: 4
            MonoLabel { text: qsTrId("leftovers.selected"); tone: MonoLabel.Faint }
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
        }
        Row {
            id: controls
            anchors { right: parent.right; rightMargin: 32; verticalCenter: parent.verticalCenter }
            spacing: 20
            DestinationPicker {
                anchors.verticalCenter: parent.verticalCenter
                model: root.model
                title: qsTrId("leftovers.destination")
            }
            PainelButton {
                objectName: "cleanKey"
                anchors.verticalCenter: parent.verticalCenter
                text: qsTrId("leftovers.clean")
                kind: PainelButtonKind.Accent
                enabled: root.model.selection.count > 0
                onClicked: root.model.confirming = true
            }
        }
    }
}
