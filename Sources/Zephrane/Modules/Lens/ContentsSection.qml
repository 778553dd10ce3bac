pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// The list of the folder in focus: the accessible form of the map, and where the keyboard works.
FocusScope {
    id: root

    required property SpaceLensModel lens

    Rectangle {
        anchors.fill: parent
        color: PainelTheme.panel
        border.width: 1
        border.color: root.activeFocus ? PainelTheme.accent : PainelTheme.border
        radius: 6
    }

    MonoLabel {
        id: heading
        anchors.left: parent.left
        anchors.top: parent.top
        anchors.margins: 12
        text: qsTrId("lens.list")
        tone: MonoLabel.Faint
    }

    ListView {
        id: list
        objectName: "lensList"
        anchors.fill: parent
        anchors.topMargin: heading.height + 20
        anchors.margins: 4
        clip: true
        focus: true
        activeFocusOnTab: true
        model: root.lens.rows
        currentIndex: root.lens.navigation.highlightedRowIndex
        highlightFollowsCurrentItem: false
        boundsBehavior: Flickable.StopAtBounds
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("lens.list")

        delegate: LensRow {
            width: ListView.view.width
            lens: root.lens
        }

        Keys.onPressed: (event) => {
            const rightToLeft = root.LayoutMirroring.enabled || Qt.application.layoutDirection === Qt.RightToLeft
            if (root.lens.handleKey(event.key, event.modifiers, rightToLeft))
                event.accepted = true
        }

        Connections {
            target: root.lens.navigation
            function onHighlightChanged() {
                if (root.lens.navigation.highlightedRowIndex >= 0)
                    list.positionViewAtIndex(root.lens.navigation.highlightedRowIndex, ListView.Contain)
            }
        }
    }
}
