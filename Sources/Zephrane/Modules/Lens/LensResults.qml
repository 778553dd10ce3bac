pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Zephrane

// A scanned tree: where one is, the map of the folder in focus beside its list, and what is marked.
Item {
    id: root

    required property SpaceLensModel lens

    ColumnLayout {
        anchors.fill: parent
        anchors.leftMargin: 24
        anchors.rightMargin: 24
        anchors.topMargin: 44
        anchors.bottomMargin: 20
        spacing: 14

        RowLayout {
            Layout.fillWidth: true
            spacing: 12
            Breadcrumbs {
                Layout.fillWidth: true
                lens: root.lens
            }
            PainelButton {
                objectName: "chooseOtherKey"
                text: qsTrId("lens.chooseOther")
                onClicked: root.lens.chooseFolderAndScan()
            }
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: 20

            Item {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.minimumWidth: 240
                Accessible.ignored: true

                SunburstCanvas {
                    id: map
                    objectName: "sunburst"
                    anchors.fill: parent
                    model: root.lens
                    reducedMotion: PainelTheme.reducedMotion
                    increasedContrast: PainelTheme.increasedContrast
                    accentColor: PainelTheme.accent
                    faintColor: PainelTheme.faint
                    textColor: PainelTheme.text
                    Accessible.ignored: true
                }
                CenterDisc {
                    anchors.centerIn: map
                    diameter: map.centreDiameter
                    lens: root.lens
                }
                MonoLabel {
                    anchors.left: parent.left
                    anchors.top: parent.top
                    text: qsTrId("lens.map")
                    tone: MonoLabel.Faint
                }
            }

            ContentsSection {
                id: contents
                Layout.preferredWidth: Math.min(400, Math.max(300, root.width * 0.4))
                Layout.fillHeight: true
                lens: root.lens
                focus: true
            }
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: 1
            color: PainelTheme.divider
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: 16

            Column {
                spacing: 4
                MonoLabel { text: qsTrId("lens.size"); tone: MonoLabel.Faint }
                LEDNumber {
                    objectName: "markedSize"
                    size: 24
                    bytes: root.lens.markedBytes
                    color: root.lens.markedCount > 0 ? PainelTheme.accent : PainelTheme.muted
                    label: qsTrId("lens.size")
                }
            }
            Column {
                spacing: 4
                MonoLabel { text: qsTrId("lens.destination"); tone: MonoLabel.Faint }
                Text {
                    text: root.lens.destinationTitle
                    color: PainelTheme.text
                    font.family: PainelTheme.sansFamily
                    font.pixelSize: 14
                }
            }
            Item { Layout.fillWidth: true }
            PainelButton {
                objectName: "removeKey"
                text: qsTrId("lens.remove")
                kind: PainelButtonKind.Accent
                enabled: root.lens.markedCount > 0
                onClicked: root.lens.requestRemoval()
            }
        }
    }
}
