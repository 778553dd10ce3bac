pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// The root volume under the channel keys: a meter of used space, the free bytes in LED digits and
// the size of the volume.
Column {
    id: root

    property real free: 0
    property real total: 0
    property real usedFraction: 0

    spacing: 8
    Accessible.role: Accessible.ProgressBar
    Accessible.name: qsTrId("shell.disk.a11y")
    Accessible.description: qsTrId("shell.disk.free").arg(ByteFormat.spoken(root.free)).arg(ByteFormat.spoken(root.total))

    MonoLabel {
        text: qsTrId("shell.disk.label")
        tone: MonoLabel.Faint
    }

    // The last cells light in the accent: a disk that is nearly full shows it.
    LEDMeter {
        width: parent.width
        height: 8
        cells: 24
        spacing: 2
        accentTail: 3
        tint: LEDMeter.Muted
        fraction: root.usedFraction
        Accessible.ignored: true
    }

    Row {
        spacing: 8

        LEDNumber {
            id: freeDigits
            size: 22
            bytes: root.free
            Accessible.ignored: true
        }
        MonoLabel {
            anchors.bottom: freeDigits.bottom
            anchors.bottomMargin: 2
            text: qsTrId("shell.disk.freeOf").arg(ByteFormat.text(root.total))
            tone: MonoLabel.Faint
        }
    }
}
