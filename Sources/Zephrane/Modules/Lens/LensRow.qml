pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// One child of the folder in focus: its mark, its name, its share of the folder and its size.
Rectangle {
    id: root

    required property SpaceLensModel lens
    required property int index
    required property string path
    required property string name
    required property var bytes
    required property string share
    required property real fraction
    required property bool isHighlighted
    required property bool isOn
    required property bool isMixed
    required property bool isCovered
    required property bool canMark
    required property bool canOpen

    readonly property string markState: isOn ? qsTrId("lens.row.marked")
                                      : isCovered ? qsTrId("lens.row.inside")
                                      : isMixed ? qsTrId("lens.row.mixed") : ""
    // A row inside a marked folder goes with it; its own mark has nothing to change.
    readonly property bool markable: canMark && !isCovered

    implicitHeight: 40
    radius: 4
    color: isHighlighted ? PainelTheme.raised : (hover.hovered ? PainelTheme.divider : "transparent")
    border.width: isHighlighted ? 1 : 0
    border.color: PainelTheme.accent

    Accessible.role: Accessible.ListItem
    Accessible.name: [name, share, ByteFormat.text(bytes), markState].filter(s => s.length > 0).join(", ")
    Accessible.description: qsTrId("lens.row.hint")
    Accessible.selected: isHighlighted

    HoverHandler {
        id: hover
        onHoveredChanged: hovered ? root.lens.navigation.setHoveredPath(root.path)
                                  : root.lens.navigation.leave(root.path)
    }
    TapHandler {
        onTapped: root.lens.navigation.setCursorPath(root.path)
        onDoubleTapped: root.lens.navigation.openPath(root.path)
    }

    // The mark: lit when on, half lit when something inside is marked.
    Rectangle {
        id: mark
        objectName: "rowMark"
        anchors.left: parent.left
        anchors.leftMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        width: 16
        height: 16
        radius: 3
        visible: root.canMark
        color: root.isOn ? PainelTheme.accent : PainelTheme.deep
        opacity: root.isCovered ? 0.5 : 1
        border.width: 1
        border.color: root.isOn || root.isMixed || root.isCovered ? PainelTheme.accent : PainelTheme.border
        activeFocusOnTab: false
        Accessible.role: Accessible.CheckBox
        Accessible.name: root.isCovered ? qsTrId("lens.row.inside")
                       : root.isOn ? qsTrId("lens.row.unmark") : qsTrId("lens.row.mark")
        Accessible.checked: root.isOn || root.isCovered
        Accessible.onToggleAction: if (root.markable) root.lens.toggleMarkPath(root.path)
        Accessible.onPressAction: if (root.markable) root.lens.toggleMarkPath(root.path)

        Rectangle {
            anchors.centerIn: parent
            width: 8
            height: 2
            visible: root.isMixed
            color: PainelTheme.accent
        }
        Text {
            anchors.centerIn: parent
            visible: root.isOn || root.isCovered
            text: "✓"
            color: PainelTheme.onAccent
            font.pixelSize: 12
            font.bold: true
        }
        TapHandler {
            enabled: root.markable
            onTapped: root.lens.toggleMarkPath(root.path)
        }
    }

    Text {
        id: nameLabel
        anchors.left: mark.right
        anchors.leftMargin: 10
        anchors.right: shareLabel.left
        anchors.rightMargin: 8
        anchors.top: parent.top
        anchors.topMargin: 6
        text: root.name
        elide: Text.ElideMiddle
        color: root.canMark ? PainelTheme.text : PainelTheme.faint
        font.family: PainelTheme.sansFamily
        font.pixelSize: 13
    }

    // The share of the folder as a thin bar under the name.
    Rectangle {
        anchors.left: nameLabel.left
        anchors.right: nameLabel.right
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 8
        height: 3
        radius: 1.5
        color: PainelTheme.ledOff
        Rectangle {
            width: Math.max(2, parent.width * root.fraction)
            height: parent.height
            radius: 1.5
            color: root.isOn || root.isCovered || root.isHighlighted ? PainelTheme.accent : PainelTheme.muted
        }
    }

    Text {
        id: shareLabel
        anchors.right: sizeLabel.left
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        width: 44
        horizontalAlignment: Text.AlignRight
        text: root.share
        color: PainelTheme.muted
        font.family: PainelTheme.monoFamily
        font.pixelSize: 11
    }
    Text {
        id: sizeLabel
        anchors.right: openKey.left
        anchors.rightMargin: 6
        anchors.verticalCenter: parent.verticalCenter
        width: 72
        horizontalAlignment: Text.AlignRight
        text: ByteFormat.text(root.bytes)
        color: PainelTheme.text
        font.family: PainelTheme.monoFamily
        font.pixelSize: 12
    }
    Text {
        id: openKey
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        width: 16
        text: root.canOpen ? "›" : ""
        color: openArea.containsMouse ? PainelTheme.accent : PainelTheme.faint
        font.family: PainelTheme.monoFamily
        font.pixelSize: 18
        Accessible.role: Accessible.Button
        Accessible.name: qsTrId("lens.row.open")
        Accessible.ignored: !root.canOpen
        MouseArea {
            id: openArea
            anchors.fill: parent
            anchors.margins: -6
            enabled: root.canOpen
            hoverEnabled: true
            onClicked: root.lens.navigation.openPath(root.path)
        }
    }
}
