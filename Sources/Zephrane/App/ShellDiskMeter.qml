pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// The root volume under the channel keys: a bar of used space and the free bytes.
Column {
    id: root

    property real free: 0
    property real total: 0
    property real usedFraction: 0

    spacing: 6
    Accessible.role: Accessible.ProgressBar
    Accessible.name: qsTrId("shell.disk.a11y")
    Accessible.description: freeText.text

    MonoLabel {
        text: qsTrId("shell.disk.label")
        tone: MonoLabel.Faint
    }

    Rectangle {
        width: parent.width
        height: 6
        radius: 3
        color: PainelTheme.ledOff
        Rectangle {
            width: parent.width * root.usedFraction
            height: parent.height
            radius: 3
            color: root.usedFraction > 0.9 ? PainelTheme.warn : PainelTheme.muted
        }
    }

    Text {
        id: freeText
        text: qsTrId("shell.disk.free").arg(Qt.locale().formattedDataSize(root.free, 1, Locale.DataSizeSIFormat))
                .arg(Qt.locale().formattedDataSize(root.total, 0, Locale.DataSizeSIFormat))
        color: PainelTheme.muted
        font.family: PainelTheme.monoFamily
        font.pixelSize: 11
    }
}
