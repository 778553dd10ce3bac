pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Zephrane

// A labelled panel that holds rows, one under the other, with rules between them.
ColumnLayout {
    id: root

    property string title
    default property alias rows: body.data

    spacing: 8

    MonoLabel {
        text: root.title
        tone: MonoLabel.Faint
        Layout.leftMargin: 2
        Accessible.role: Accessible.Heading
        Accessible.name: root.title
    }

    Rectangle {
        Layout.fillWidth: true
        implicitHeight: body.implicitHeight + 20
        radius: 10
        color: PainelTheme.panel
        border.width: 1
        border.color: PainelTheme.border

        ColumnLayout {
            id: body
            anchors.fill: parent
            anchors.leftMargin: 16
            anchors.rightMargin: 16
            anchors.topMargin: 10
            anchors.bottomMargin: 10
            spacing: 6
        }
    }
}
