pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// The middle of the map: the highlighted item, or the folder in focus, with its size in LED digits.
Rectangle {
    id: root

    required property SpaceLensModel lens
    property real diameter: 200

    width: diameter
    height: diameter
    radius: diameter / 2
    color: PainelTheme.deep
    border.width: 1
    border.color: PainelTheme.border
    visible: diameter > 24
    Accessible.ignored: true

    Column {
        anchors.centerIn: parent
        width: root.diameter * (1 - 2 * 0.12)
        spacing: root.diameter * 0.03

        Text {
            objectName: "centreTitle"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: root.lens.navigation.centreTitle
            elide: Text.ElideMiddle
            color: PainelTheme.text
            font.family: PainelTheme.sansFamily
            font.pixelSize: Math.max(10, root.diameter * 0.075)
            font.weight: Font.DemiBold
        }
        LEDNumber {
            objectName: "centreSize"
            anchors.horizontalCenter: parent.horizontalCenter
            size: Math.max(14, root.diameter * 0.2)
            bytes: root.lens.navigation.centreBytes
            color: PainelTheme.accent
        }
        Text {
            objectName: "centreLine"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: root.lens.navigation.centreLine
            elide: Text.ElideRight
            color: PainelTheme.muted
            font.family: PainelTheme.monoFamily
            font.pixelSize: Math.max(9, root.diameter * 0.055)
        }
    }
}
