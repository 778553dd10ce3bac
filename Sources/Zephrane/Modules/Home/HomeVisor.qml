import QtQuick
import Zephrane

// The smart scan's headline: an introduction before one, a busy line during, the total after.
Rectangle {
    id: root
    required property HomeModel home
    required property homeSnapshot snapshot
    readonly property string stage: snapshot.stage

    implicitHeight: content.implicitHeight + 40
    radius: 8
    color: PainelTheme.deep
    border.color: PainelTheme.border

    Column {
        id: content
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: 20
        spacing: 10

        PhaseHeader {
            objectName: "visorStatus"
            text: root.stage === "scanning" ? qsTrId("home.visor.scanning")
                : root.stage === "after" ? root.home.scannedAtText : qsTrId("home.visor.never")
            tone: root.stage === "scanning" ? PhaseHeader.Accent
                : root.stage === "after" ? PhaseHeader.Ok : PhaseHeader.Muted
            busy: root.stage === "scanning"
        }
        Text {
            objectName: "visorBody"
            visible: root.stage !== "after" || root.snapshot.totalBytes <= 0
            width: parent.width
            text: root.stage === "scanning" ? qsTrId("home.scan.running.body")
                : root.stage === "after" ? qsTrId("home.visor.empty") : qsTrId("home.visor.intro")
            color: PainelTheme.text
            font.family: PainelTheme.sansFamily
            font.pixelSize: 16
            wrapMode: Text.WordWrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        LEDNumber {
            objectName: "visorTotal"
            visible: root.stage === "after" && root.snapshot.totalBytes > 0
            bytes: root.snapshot.totalBytes
            size: 48
            label: qsTrId("home.visor.total")
        }
        MonoLabel {
            objectName: "visorJunk"
            visible: root.stage === "after" && root.snapshot.totalBytes > 0
            text: qsTrId("home.visor.junk").arg(ByteFormat.text(root.snapshot.junkBytes))
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
