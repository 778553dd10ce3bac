pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// The disk-access grant as a lamp and a word, wherever the grant is shown.
Row {
    id: root

    property bool granted: false

    spacing: 8
    Accessible.role: Accessible.StaticText
    Accessible.name: label.text

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 8
        height: 8
        radius: 4
        color: root.granted ? PainelTheme.ok : PainelTheme.ledOff
        border.width: root.granted ? 0 : 1
        border.color: PainelTheme.border
    }

    MonoLabel {
        id: label
        anchors.verticalCenter: parent.verticalCenter
        text: root.granted ? qsTrId("settings.disk.granted") : qsTrId("settings.disk.off")
        color: root.granted ? PainelTheme.ok : PainelTheme.muted
        Accessible.ignored: true
    }
}
