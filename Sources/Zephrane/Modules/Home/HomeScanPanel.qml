pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// The smart scan's key, its two steps while it runs, and what it found afterwards.
Rectangle {
    id: root
    required property HomeModel home
    required property homeSnapshot snapshot
    readonly property string stage: snapshot.stage

    implicitHeight: content.implicitHeight + 40
    radius: 8
    color: PainelTheme.panel
    border.color: PainelTheme.border

    function stepText(step: string): string {
        return step === "running" ? qsTrId("home.step.running")
             : step === "queued" ? qsTrId("home.step.queued")
             : step === "done" ? qsTrId("home.step.done") : qsTrId("home.step.idle")
    }

    Column {
        id: content
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: 20
        spacing: 12

        // Before any scan.
        Text {
            visible: root.stage === "before"
            width: parent.width
            text: qsTrId("home.scan.intro")
            color: PainelTheme.muted
            font.family: PainelTheme.sansFamily
            font.pixelSize: 14
            wrapMode: Text.WordWrap
        }
        PainelButton {
            objectName: "smartScanKey"
            visible: root.stage === "before"
            text: qsTrId("home.scan.start")
            kind: PainelButtonKind.Accent
            focus: visible
            onClicked: root.home.runSmartScan()
        }

        // While it runs.
        Repeater {
            model: root.stage === "scanning" ? [
                { title: qsTrId("channel.junk.title"), step: root.snapshot.junkStep },
                { title: qsTrId("channel.leftovers.title"), step: root.snapshot.leftoversStep }
            ] : []
            delegate: Row {
                id: stepRow
                required property var modelData
                spacing: 10
                CheckLED {
                    anchors.verticalCenter: parent.verticalCenter
                    isOn: stepRow.modelData.step === "done"
                    interactive: false
                    label: stepRow.modelData.title
                }
                Text {
                    width: 220
                    text: stepRow.modelData.title
                    color: PainelTheme.text
                    font.family: PainelTheme.sansFamily
                    font.pixelSize: 14
                    elide: Text.ElideRight
                }
                MonoLabel {
                    anchors.verticalCenter: parent.verticalCenter
                    text: root.stepText(stepRow.modelData.step)
                    tone: stepRow.modelData.step === "running" ? MonoLabel.Accent
                        : stepRow.modelData.step === "done" ? MonoLabel.Ok : MonoLabel.Muted
                }
                Accessible.role: Accessible.StaticText
                Accessible.name: stepRow.modelData.title + ", " + root.stepText(stepRow.modelData.step)
            }
        }
        MonoLabel {
            objectName: "scanProgress"
            visible: root.stage === "scanning"
            text: qsTrId("home.scan.progress") + "  " + qsTrId("home.scan.progress.value").arg(root.snapshot.stepsDone).arg(2)
            Accessible.role: Accessible.ProgressBar
            Accessible.name: text
        }

        // After.
        MonoLabel {
            objectName: "scanItems"
            visible: root.stage === "after"
            text: qsTrId("home.scan.items").arg(root.snapshot.itemCount.toLocaleString(Qt.locale(), 'f', 0))
        }
        Repeater {
            model: root.stage === "after" ? root.snapshot.parts : []
            delegate: Text {
                required property homePart modelData
                width: content.width
                text: qsTrId("home.pair").arg(modelData.title).arg(ByteFormat.text(modelData.bytes))
                color: PainelTheme.text
                font.family: PainelTheme.sansFamily
                font.pixelSize: 13
                elide: Text.ElideRight
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        Text {
            visible: root.stage === "after"
            width: parent.width
            text: qsTrId("home.scan.found.body")
            color: PainelTheme.muted
            font.family: PainelTheme.sansFamily
            font.pixelSize: 13
            wrapMode: Text.WordWrap
        }
        Row {
            visible: root.stage === "after"
            spacing: 12
            PainelButton {
                objectName: "reviewKey"
                text: qsTrId("home.scan.review")
                kind: PainelButtonKind.Accent
                focus: root.stage === "after"
                onClicked: root.home.review()
            }
            PainelButton {
                objectName: "rescanKey"
                text: qsTrId("home.scan.again")
                onClicked: root.home.runSmartScan()
            }
        }
    }
}
