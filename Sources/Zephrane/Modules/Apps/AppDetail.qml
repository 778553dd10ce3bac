pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Zephrane

// The app on show: its header, the blocker when there is one, every file with its kind, caution
// and size and a tick of its own, and the uninstall key (or why it is off).
FocusScope {
    id: root

    required property UninstallerModel model

    Item {
        id: header
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: 24 }
        height: 64

        Rectangle {
            id: tile
            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            width: 56
            height: 56
            radius: 12
            color: PainelTheme.deep
            border.width: icon.status === Image.Ready ? 0 : 1
            border.color: PainelTheme.divider
            Image {
                id: icon
                anchors.fill: parent
                anchors.margins: 4
                source: root.model.selectedIcon
                sourceSize: Qt.size(128, 128)
                asynchronous: true
                fillMode: Image.PreserveAspectFit
                visible: root.model.selectedIcon.length > 0
            }
            Text {
                anchors.centerIn: parent
                visible: icon.status !== Image.Ready
                text: root.model.selectedName.length > 0 ? root.model.selectedName[0].toUpperCase() : ""
                color: PainelTheme.faint
                font.family: PainelTheme.sansFamily
                font.pixelSize: 24
                font.weight: Font.DemiBold
            }
        }
        Column {
            anchors { left: tile.right; leftMargin: 16; right: total.left; rightMargin: 16; verticalCenter: parent.verticalCenter }
            spacing: 4
            Text {
                objectName: "appName"
                width: parent.width
                text: root.model.selectedName
                color: PainelTheme.text
                font.family: PainelTheme.sansFamily
                font.pixelSize: 22
                font.weight: Font.DemiBold
                elide: Text.ElideRight
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Text {
                width: parent.width
                text: root.model.selectedDetail
                color: PainelTheme.muted
                font.family: PainelTheme.monoFamily
                font.pixelSize: 11
                elide: Text.ElideRight
            }
            Text {
                width: parent.width
                text: root.model.lastUsedText
                color: PainelTheme.faint
                font.family: PainelTheme.sansFamily
                font.pixelSize: 12
                elide: Text.ElideRight
            }
        }
        LEDNumber {
            id: total
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            bytes: root.model.selectedTotal
            size: 30
            label: root.model.selectedName
        }
    }

    BlockerBanner {
        id: banner
        objectName: "blockerBanner"
        anchors { left: parent.left; right: parent.right; top: header.bottom; leftMargin: 24; rightMargin: 24; topMargin: 14 }
        model: root.model
    }

    MonoLabel {
        id: filesLabel
        anchors { left: parent.left; top: banner.bottom; leftMargin: 24; topMargin: 18 }
        text: qsTrId("apps.files.label")
        tone: MonoLabel.Faint
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    ListView {
        id: files
        objectName: "appFiles"
        anchors { left: parent.left; right: parent.right; top: filesLabel.bottom; bottom: bar.top
                  leftMargin: 24; rightMargin: 24; topMargin: 8; bottomMargin: 8 }
        clip: true
        model: root.model.files
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar { policy: ScrollBar.AsNeeded }

        delegate: Item {
            id: fileRow
            required property string path
            required property string name
            required property string sizeText
            required property string subtitle
            required property bool hasNote
            required property bool selected
            width: files.width
            height: 44

            Rectangle {
                anchors { left: parent.left; right: parent.right; top: parent.top }
                height: 1
                color: PainelTheme.divider
            }
            CheckLED {
                id: lamp
                objectName: "fileCheck"
                anchors { left: parent.left; verticalCenter: parent.verticalCenter }
                isOn: fileRow.selected
                label: fileRow.name
                onToggled: root.model.selection.setSelected(fileRow.path, !fileRow.selected)
                PainelFocusRing {}
                MouseArea {
                    anchors.fill: parent
                    anchors.margins: -6
                    onClicked: root.model.selection.setSelected(fileRow.path, !fileRow.selected)
                }
            }
            Column {
                anchors { left: lamp.right; leftMargin: 14; right: fileSize.left; rightMargin: 16
                          verticalCenter: parent.verticalCenter }
                spacing: 2
                Text {
                    width: parent.width
                    text: fileRow.name
                    color: PainelTheme.text
                    font.family: PainelTheme.sansFamily
                    font.pixelSize: 13
                    elide: Text.ElideMiddle
                }
                Text {
                    width: parent.width
                    text: fileRow.subtitle
                    color: fileRow.hasNote ? PainelTheme.warn : PainelTheme.faint
                    font.family: PainelTheme.monoFamily
                    font.pixelSize: 11
                    elide: Text.ElideMiddle
                }
            }
            Text {
                id: fileSize
                anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                text: fileRow.sizeText
                color: PainelTheme.muted
                font.family: PainelTheme.monoFamily
                font.pixelSize: 12
            }
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
            anchors { left: parent.left; leftMargin: 24; right: controls.left; rightMargin: 16; verticalCenter: parent.verticalCenter }
            spacing: 4
            MonoLabel { text: qsTrId("apps.selected.label"); tone: MonoLabel.Faint }
            Text {
                objectName: "selectedText"
                width: parent.width
                text: root.model.selectedText
                color: PainelTheme.text
                font.family: PainelTheme.monoFamily
                font.pixelSize: 14
                elide: Text.ElideRight
            }
        }
        Row {
            id: controls
            anchors { right: parent.right; rightMargin: 24; verticalCenter: parent.verticalCenter }
            spacing: 16
            DestinationPicker {
                anchors.verticalCenter: parent.verticalCenter
                visible: root.model.blocker.length === 0
                model: root.model
                title: qsTrId("apps.destination")
            }
            PainelButton {
                objectName: "uninstallKey"
                anchors.verticalCenter: parent.verticalCenter
                text: root.model.blocker.length > 0 ? root.model.blockerButton : qsTrId("apps.uninstall")
                kind: PainelButtonKind.Accent
                enabled: root.model.blocker.length === 0 && root.model.selection.count > 0
                onClicked: root.model.askToUninstall()
            }
        }
    }
}
