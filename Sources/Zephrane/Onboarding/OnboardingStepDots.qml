import QtQuick
import Zephrane

// One dot per screen: the current one lit, the ones before it dimmed.
Row {
    id: root
    property int step: 0
    property int count: 5
    spacing: 6
    Accessible.role: Accessible.StaticText
    Accessible.name: qsTrId("onboarding.progress").arg(root.step + 1).arg(root.count)

    Repeater {
        model: root.count
        Rectangle {
            required property int index
            width: index === root.step ? 18 : 6
            height: 6
            radius: 3
            color: index === root.step ? PainelTheme.accent : index < root.step ? PainelTheme.muted : PainelTheme.ledOff
        }
    }
}
