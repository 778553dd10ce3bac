pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Zephrane

// What a large-files scan found: the total, the filter bar, the list in the chosen order with its
// select-all box and sortable headers, and the bar that removes the selection.
FocusScope {
    id: root

    required property LargeFilesModel model

    // The widths of the list's columns, shared by the headers and the rows.
    readonly property QtObject columns: QtObject {
        readonly property int check: 20
        readonly property int kind: 128
        readonly property int lastUsed: 140
        readonly property int meter: 88
        readonly property int size: 76
        readonly property int reveal: 28
        readonly property int spacing: 14
        readonly property int fixedWidth: check + kind + lastUsed + meter + size + reveal + 6 * spacing
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
                text: qsTrId("channel.large.title")
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
                text: root.model.foundDetail
                color: PainelTheme.muted
                font.family: PainelTheme.sansFamily
                font.pixelSize: 13
                elide: Text.ElideRight
            }
        }
        Column {
            id: found
            spacing: 6
            MonoLabel {
                anchors.right: parent.right
                text: qsTrId("large.found")
                tone: MonoLabel.Accent
            }
            LEDNumber {
                objectName: "foundBytes"
                anchors.right: parent.right
                bytes: root.model.foundBytes
                size: 40
                label: qsTrId("large.found")
            }
        }
    }

    Item {
        id: filterBar
        anchors { left: parent.left; right: parent.right; top: header.bottom; leftMargin: 32; rightMargin: 32
                  topMargin: 18 }
        height: filters.height

        Flow {
            id: filters
            width: parent.width - filesCount.width - 16
            spacing: 18
            Accessible.role: Accessible.Grouping
            Accessible.name: qsTrId("large.filters")

            LargeFilterChoice {
                name: "size"
                title: qsTrId("large.filter.size")
                options: root.model.sizeOptions
                current: root.model.minimumSize
                onChosen: raw => root.model.minimumSize = raw
            }
            LargeFilterChoice {
                name: "age"
                title: qsTrId("large.filter.age")
                options: root.model.ageOptions
                current: root.model.age
                onChosen: raw => root.model.age = raw
            }
            LargeFilterChoice {
                name: "kind"
                title: qsTrId("large.filter.kind")
                options: root.model.kindOptions
                current: root.model.kind
                onChosen: raw => root.model.kind = raw
            }
        }
        Text {
            id: filesCount
            objectName: "filesText"
            anchors { right: parent.right; bottom: parent.bottom; bottomMargin: 5 }
            text: root.model.filesText
            color: PainelTheme.muted
            font.family: PainelTheme.monoFamily
            font.pixelSize: 12
        }
    }

    Row {
        id: columnHeads
        anchors { left: parent.left; right: parent.right; top: filterBar.bottom; leftMargin: 36; rightMargin: 32
                  topMargin: 16 }
        height: 24
        spacing: root.columns.spacing

        CheckLED {
            id: selectAll
            objectName: "selectAll"
            width: root.columns.check
            anchors.verticalCenter: parent.verticalCenter
            enabled: root.model.visibleCount > 0
            isOn: root.model.selectAllOn
            isMixed: root.model.selectAllMixed
            label: qsTrId("large.selectAll") + ", " + (root.model.selectAllMixed ? qsTrId("large.selectAll.mixed")
                   : root.model.selectAllOn ? qsTrId("large.selectAll.on") : qsTrId("large.selectAll.off"))
            onToggled: root.model.toggleSelectAll()
        }
        Repeater {
            model: [{ title: qsTrId("large.column.file"), sort: "name", width: -1 },
                    { title: qsTrId("large.column.kind"), sort: "", width: root.columns.kind },
                    { title: qsTrId("large.column.lastUsed"), sort: "lastUsed", width: root.columns.lastUsed },
                    { title: qsTrId("large.column.weight"), sort: "", width: root.columns.meter },
                    { title: qsTrId("large.column.size"), sort: "size", width: root.columns.size }]
            delegate: Item {
                id: head
                required property var modelData
                readonly property bool sorts: modelData.sort.length > 0
                readonly property bool sorted: sorts && root.model.sort === modelData.sort
                objectName: "column-" + (sorts ? modelData.sort : "plain")
                width: modelData.width < 0 ? columnHeads.width - root.columns.fixedWidth : modelData.width
                height: parent.height
                activeFocusOnTab: sorts
                Accessible.role: sorts ? Accessible.Button : Accessible.ColumnHeader
                Accessible.name: sorts ? qsTrId("large.sort").arg(modelData.title) : modelData.title
                Accessible.checkable: sorts
                Accessible.checked: sorted
                Accessible.onPressAction: if (sorts) root.model.sort = modelData.sort
                Keys.onSpacePressed: if (sorts) root.model.sort = modelData.sort
                Keys.onReturnPressed: if (sorts) root.model.sort = modelData.sort

                MonoLabel {
                    anchors.verticalCenter: parent.verticalCenter
                    anchors.right: head.modelData.sort === "size" ? parent.right : undefined
                    text: head.modelData.title + (head.sorted ? " ▾" : "")
                    tone: head.sorted ? MonoLabel.Accent : MonoLabel.Faint
                }
                MouseArea {
                    anchors.fill: parent
                    enabled: head.sorts
                    onClicked: root.model.sort = head.modelData.sort
                }
                PainelFocusRing {}
            }
        }
    }

    ListView {
        id: rows
        objectName: "largeRows"
        anchors { left: parent.left; right: parent.right; top: columnHeads.bottom; bottom: actionBar.top
                  leftMargin: 24; rightMargin: 24; topMargin: 6; bottomMargin: 8 }
        clip: true
        spacing: 2
        focus: true
        keyNavigationEnabled: true
        activeFocusOnTab: true
        reuseItems: true
        model: root.model.list
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar { policy: ScrollBar.AsNeeded }
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("channel.large.title")

        delegate: LargeFileRow {
            objectName: "largeRow-" + index
            width: rows.width
            large: root.model
            columns: root.columns
            focus: ListView.isCurrentItem
            // A row clicked or reached by Tab becomes the one the arrows move on from.
            onActiveFocusChanged: if (activeFocus) rows.currentIndex = index
        }
    }

    Column {
        objectName: "filteredEmpty"
        visible: root.model.filteredEmpty
        anchors.centerIn: rows
        width: Math.min(rows.width - 48, 420)
        spacing: 8
        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: qsTrId("large.filtered.empty")
            color: PainelTheme.text
            font.family: PainelTheme.sansFamily
            font.pixelSize: 17
            font.weight: Font.Medium
            wrapMode: Text.WordWrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: qsTrId("large.filtered.empty.hint")
            color: PainelTheme.muted
            font.family: PainelTheme.sansFamily
            font.pixelSize: 13
            wrapMode: Text.WordWrap
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
                title: qsTrId("large.destination")
            }
            PainelButton {
                objectName: "cleanKey"
                anchors.verticalCenter: parent.verticalCenter
                text: root.model.removeText
                kind: PainelButtonKind.Accent
                enabled: root.model.selection.count > 0
                Accessible.role: Accessible.Button
                Accessible.name: text
                onClicked: root.model.confirming = true
            }
        }
    }
}
