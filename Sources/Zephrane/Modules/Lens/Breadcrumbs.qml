pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// The way from the scanned folder down to the one in focus; every level but the last goes back.
Flow {
    id: root

    required property SpaceLensModel lens

    spacing: 4
    Accessible.role: Accessible.List
    Accessible.name: qsTrId("lens.path")

    PainelButton {
        objectName: "upKey"
        text: qsTrId("lens.up")
        enabled: root.lens.navigation.canGoUp
        onClicked: root.lens.navigation.goUp()
    }

    Repeater {
        model: root.lens.navigation.pathNames
        delegate: Row {
            id: crumb
            required property string modelData
            required property int index
            readonly property bool current: index === root.lens.navigation.pathNames.length - 1
            spacing: 4
            height: 38

            Text {
                anchors.verticalCenter: parent.verticalCenter
                visible: crumb.index > 0
                text: "›"
                color: PainelTheme.faint
                font.family: PainelTheme.monoFamily
                font.pixelSize: 14
            }
            Text {
                id: label
                anchors.verticalCenter: parent.verticalCenter
                text: crumb.modelData
                color: crumb.current ? PainelTheme.text : (area.containsMouse ? PainelTheme.accent : PainelTheme.muted)
                font.family: PainelTheme.monoFamily
                font.pixelSize: 13
                font.weight: crumb.current ? Font.DemiBold : Font.Normal
                activeFocusOnTab: !crumb.current
                Accessible.role: crumb.current ? Accessible.StaticText : Accessible.Button
                Accessible.name: crumb.current ? qsTrId("lens.path.current").arg(crumb.modelData) : crumb.modelData
                Accessible.onPressAction: root.lens.navigation.goToLevel(crumb.index)
                Keys.onReturnPressed: root.lens.navigation.goToLevel(crumb.index)
                Keys.onSpacePressed: root.lens.navigation.goToLevel(crumb.index)

                MouseArea {
                    id: area
                    anchors.fill: parent
                    enabled: !crumb.current
                    hoverEnabled: true
                    cursorShape: Qt.PointingHandCursor
                    onClicked: root.lens.navigation.goToLevel(crumb.index)
                }
                PainelFocusRing {}
            }
        }
    }
}
