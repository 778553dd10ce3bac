import QtQuick
import QtQuick.Layouts
import Zephrane

// The thin rule between two rows of a settings panel.
Rectangle {
    Layout.fillWidth: true
    implicitHeight: 1
    color: PainelTheme.divider
}
