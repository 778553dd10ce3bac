pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// A small self-test: each line a label, its status, and a lamp in the status's tone.
Column {
    id: root
    property string title
    // [{ id, label, status, tone: "ok" | "muted" | "warn" }]
    property var lines: []
    spacing: 8

    MonoLabel { text: root.title; tone: MonoLabel.Normal }
    Repeater {
        model: root.lines
        Row {
            id: line
            required property var modelData
            objectName: "check-" + modelData.id
            spacing: 10
            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: 8; height: 8; radius: 4
                color: line.modelData.tone === "ok" ? PainelTheme.ok
                     : line.modelData.tone === "warn" ? PainelTheme.warn : PainelTheme.ledOff
            }
            Text {
                width: 220
                text: line.modelData.label
                color: PainelTheme.text
                font.family: PainelTheme.sansFamily
                font.pixelSize: 13
            }
            MonoLabel {
                anchors.verticalCenter: parent.verticalCenter
                text: line.modelData.status
                tone: line.modelData.tone === "ok" ? MonoLabel.Ok : line.modelData.tone === "warn" ? MonoLabel.Warn : MonoLabel.Muted
            }
            Accessible.role: Accessible.StaticText
            Accessible.name: line.modelData.label + ", " + line.modelData.status
        }
    }
}
