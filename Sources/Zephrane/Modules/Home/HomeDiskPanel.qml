pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// The startup volume's fill, and one card per channel that opens it.
Column {
    id: root
    required property AppModel appModel
    required property HomeModel home
    readonly property homeDisk disk: home.disk

    spacing: 12

    MonoLabel {
        objectName: "diskName"
        text: root.disk.name
        tone: MonoLabel.Normal
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    LEDMeter {
        objectName: "diskMeter"
        width: parent.width
        fraction: root.disk.usedFraction
        cells: 32
        label: root.disk.name
        valueText: qsTrId("home.disk.free").arg(ByteFormat.text(root.disk.free)).arg(ByteFormat.text(root.disk.total))
    }
    MonoLabel {
        text: qsTrId("home.disk.free").arg(ByteFormat.text(root.disk.free)).arg(ByteFormat.text(root.disk.total))
    }
    Grid {
        width: parent.width
        columns: 2
        spacing: 10
        Repeater {
            model: root.home.readings
            delegate: HomeReadingCard {
                width: (root.width - 10) / 2
                onActivated: (channel) => root.appModel.openRaw(channel)
            }
        }
    }
}
