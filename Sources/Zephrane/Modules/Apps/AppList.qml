pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Zephrane

// The search field, the sort keys, the count and the apps themselves. Up and down move the
// selection from the field or from the list.
FocusScope {
    id: root

    required property UninstallerModel model

    Column {
        id: top
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: 20 }
        spacing: 10

        Rectangle {
            width: parent.width
            height: 36
            radius: 6
            color: PainelTheme.deep
            border.width: 1
            border.color: search.activeFocus ? PainelTheme.accent : PainelTheme.border

            TextInput {
                id: search
                objectName: "searchField"
                anchors { left: parent.left; right: clear.left; verticalCenter: parent.verticalCenter
                          leftMargin: 12; rightMargin: 8 }
                focus: true
                activeFocusOnTab: true
                clip: true
                color: PainelTheme.text
                selectionColor: PainelTheme.accent
                font.family: PainelTheme.sansFamily
                font.pixelSize: 14
                text: root.model.search
                onTextEdited: root.model.search = text
                Keys.onUpPressed: root.model.moveSelection(-1)
                Keys.onDownPressed: root.model.moveSelection(1)
                Accessible.role: Accessible.EditableText
                Accessible.name: qsTrId("apps.search")
                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    visible: search.text.length === 0
                    text: qsTrId("apps.search")
                    color: PainelTheme.faint
                    font: search.font
                }
            }
            PainelButton {
                id: clear
                objectName: "searchClear"
                anchors { right: parent.right; rightMargin: 4; verticalCenter: parent.verticalCenter }
                visible: root.model.search.length > 0
                size: PainelButtonSize.Small
                text: "×"
                Accessible.name: qsTrId("apps.search.clear")
                onClicked: { root.model.search = ""; search.forceActiveFocus() }
            }
        }

        Row {
            width: parent.width
            spacing: 6
            MonoLabel {
                anchors.verticalCenter: parent.verticalCenter
                text: qsTrId("apps.sort")
                tone: MonoLabel.Faint
            }
            Repeater {
                model: root.model.sorts
                delegate: PainelButton {
                    id: sortKey
                    required property string modelData
                    objectName: "sort-" + modelData
                    size: PainelButtonSize.Small
                    kind: root.model.sort === modelData ? PainelButtonKind.Accent : PainelButtonKind.Raised
                    text: ({ size: qsTrId("apps.sort.size"), name: qsTrId("apps.sort.name"),
                             lastUsed: qsTrId("apps.sort.lastUsed") })[modelData]
                    Accessible.role: Accessible.RadioButton
                    Accessible.checked: root.model.sort === modelData
                    onClicked: root.model.sort = sortKey.modelData
                }
            }
            Item { width: 1; height: 1 }
            MonoLabel {
                objectName: "appCount"
                anchors.verticalCenter: parent.verticalCenter
                text: root.model.apps.countText
                tone: MonoLabel.Faint
            }
        }
    }

    ListView {
        id: rows
        objectName: "appRows"
        anchors { left: parent.left; right: parent.right; top: top.bottom; bottom: parent.bottom
                  leftMargin: 12; rightMargin: 12; topMargin: 12; bottomMargin: 12 }
        clip: true
        spacing: 2
        activeFocusOnTab: true
        model: root.model.apps
        currentIndex: root.model.apps.selectedIndex
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        ScrollBar.vertical: ScrollBar { policy: ScrollBar.AsNeeded }
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("apps.list")
        Keys.onUpPressed: root.model.moveSelection(-1)
        Keys.onDownPressed: root.model.moveSelection(1)

        delegate: AppRow {
            width: rows.width
            onPressed: { root.model.selectAppPath(path); rows.forceActiveFocus() }
        }
    }

    Text {
        objectName: "noMatch"
        anchors { left: parent.left; right: parent.right; top: top.bottom; topMargin: 40; margins: 20 }
        visible: rows.count === 0
        text: qsTrId("apps.search.none")
        color: PainelTheme.muted
        font.family: PainelTheme.sansFamily
        font.pixelSize: 14
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
    }
}
