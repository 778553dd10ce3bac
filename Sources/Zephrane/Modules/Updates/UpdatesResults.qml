pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Zephrane

// The outdated apps, the ones that install here ticked, and the bar that installs the ticked ones
// after a confirmation. Ignored versions can be shown again from here.
FocusScope {
    id: root

    required property UpdatesModel model
    required property Preferences preferences
    property var notesRow: null

    // Widths scale with the text size.
    readonly property QtObject columns: QtObject {
        readonly property real unit: Math.max(1, fontProbe.font.pixelSize / 13)
        readonly property real spacing: 12
        readonly property real check: 24
        readonly property real version: 150 * unit
        readonly property real source: 110 * unit
        readonly property real action: 130 * unit
        readonly property real fixedWidth: check + version + source + action + 4 * spacing + 20
    }
    Text { id: fontProbe; visible: false; font.pixelSize: 13 }

    UpdatesHeader {
        id: header
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: 32 }
        model: root.model
    }

    Row {
        id: columnTitles
        anchors { left: parent.left; right: parent.right; top: header.bottom; leftMargin: 36; rightMargin: 32; topMargin: 22 }
        spacing: root.columns.spacing
        visible: root.model.visibleCount > 0
        Item { width: root.columns.check; height: 1 }
        MonoLabel { width: parent.width - root.columns.fixedWidth; text: qsTrId("updates.column.app"); tone: MonoLabel.Faint }
        MonoLabel { width: root.columns.version; text: qsTrId("updates.column.version"); tone: MonoLabel.Faint }
        MonoLabel { width: root.columns.source; text: qsTrId("updates.column.source"); tone: MonoLabel.Faint }
        MonoLabel { width: root.columns.action; text: qsTrId("updates.column.action"); tone: MonoLabel.Faint; horizontalAlignment: Text.AlignRight }
    }

    ListView {
        id: rows
        objectName: "updateRows"
        anchors { left: parent.left; right: parent.right; top: columnTitles.bottom; bottom: bar.top
                  leftMargin: 24; rightMargin: 24; topMargin: 8; bottomMargin: 8 }
        clip: true
        spacing: 4
        focus: true
        keyNavigationEnabled: true
        model: root.model.rows
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar { policy: ScrollBar.AsNeeded }

        delegate: UpdateRow {
            required property int index
            required property string notes
            required property string notesLanguage
            required property bool hasNotesURL
            objectName: "updateRow-" + name
            width: rows.width
            updates: root.model
            columns: root.columns
            focus: ListView.isCurrentItem
            onShowNotes: root.notesRow = { id: updateID, name: name, notes: notes, language: notesLanguage, hasURL: hasNotesURL }
        }
    }

    Column {
        objectName: "upToDate"
        anchors.centerIn: rows
        width: Math.min(rows.width, 420)
        spacing: 8
        visible: root.model.visibleCount === 0
        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: qsTrId("updates.upToDate.message")
            color: PainelTheme.muted
            font.family: PainelTheme.sansFamily
            font.pixelSize: 14
            wrapMode: Text.WordWrap
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
            spacing: 6
            Row {
                spacing: 10
                CheckLED {
                    objectName: "notifyToggle"
                    anchors.verticalCenter: parent.verticalCenter
                    isOn: root.preferences.notifyOutdatedApps
                    label: qsTrId("updates.notify.title")
                    onToggled: root.preferences.notifyOutdatedApps = !root.preferences.notifyOutdatedApps
                    TapHandler { onTapped: parent.toggled() }
                }
                Column {
                    Text {
                        text: qsTrId("updates.notify.title")
                        color: PainelTheme.text
                        font.family: PainelTheme.sansFamily
                        font.pixelSize: 13
                    }
                    Text {
                        text: qsTrId("updates.notify.detail")
                        color: PainelTheme.faint
                        font.family: PainelTheme.sansFamily
                        font.pixelSize: 11
                    }
                }
            }
        }
        Row {
            id: controls
            anchors { right: parent.right; rightMargin: 32; verticalCenter: parent.verticalCenter }
            spacing: 16
            Text {
                anchors.verticalCenter: parent.verticalCenter
                visible: root.model.ignoredCount > 0
                text: qsTrId("updates.ignored").arg(root.model.ignoredCount)
                color: PainelTheme.muted
                font.family: PainelTheme.sansFamily
                font.pixelSize: 12
            }
            PainelButton {
                objectName: "restoreKey"
                anchors.verticalCenter: parent.verticalCenter
                visible: root.model.ignoredCount > 0
                text: qsTrId("updates.ignored.restore")
                onClicked: root.model.restoreIgnored()
            }
            PainelButton {
                objectName: "rescanKey"
                anchors.verticalCenter: parent.verticalCenter
                text: qsTrId("updates.rescan")
                enabled: !root.model.isBusy
                onClicked: root.model.startScan()
            }
            PainelButton {
                objectName: "installAllKey"
                anchors.verticalCenter: parent.verticalCenter
                text: root.model.installAllText
                kind: root.model.isBusy ? PainelButtonKind.Raised : PainelButtonKind.Accent
                enabled: root.model.isBusy ? !root.model.isStopping : root.model.selectedCount > 0
                onClicked: root.model.isBusy ? root.model.stopInstalling() : root.model.requestInstallSelected()
            }
        }
    }

    // The confirmation before a batch.
    Rectangle {
        anchors.fill: parent
        visible: root.model.installConfirming
        color: Qt.rgba(PainelTheme.deep.r, PainelTheme.deep.g, PainelTheme.deep.b, 0.8)
        MouseArea { anchors.fill: parent }
        onVisibleChanged: if (visible) confirmKey.forceActiveFocus()
        Keys.onEscapePressed: root.model.cancelInstall()

        Rectangle {
            objectName: "installConfirmSheet"
            anchors.centerIn: parent
            width: Math.min(parent.width - 48, 480)
            height: confirmColumn.implicitHeight + 48
            radius: 10
            color: PainelTheme.panel
            border.width: 1
            border.color: PainelTheme.border
            Accessible.role: Accessible.Dialog
            Accessible.name: confirmTitle.text

            Column {
                id: confirmColumn
                anchors { fill: parent; margins: 24 }
                spacing: 14
                Text {
                    id: confirmTitle
                    width: parent.width
                    text: qsTrId("updates.confirm.title").arg(root.model.selectedCount)
                    color: PainelTheme.text
                    font.family: PainelTheme.sansFamily
                    font.pixelSize: 20
                    font.weight: Font.DemiBold
                    wrapMode: Text.WordWrap
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                Text {
                    width: parent.width
                    text: qsTrId("updates.confirm.message")
                    color: PainelTheme.muted
                    font.family: PainelTheme.sansFamily
                    font.pixelSize: 13
                    wrapMode: Text.WordWrap
                }
                Row {
                    anchors.right: parent.right
                    spacing: 12
                    PainelButton {
                        objectName: "cancelInstallKey"
                        text: qsTrId("updates.confirm.cancel")
                        onClicked: root.model.cancelInstall()
                    }
                    PainelButton {
                        id: confirmKey
                        objectName: "confirmInstallKey"
                        text: qsTrId("updates.confirm.install")
                        kind: PainelButtonKind.Accent
                        onClicked: root.model.confirmInstall()
                    }
                }
            }
        }
    }

    UpdateNotesSheet {
        anchors.fill: parent
        visible: root.notesRow !== null
        row: root.notesRow
        model: root.model
        onClosed: { root.notesRow = null; rows.forceActiveFocus() }
    }
}
