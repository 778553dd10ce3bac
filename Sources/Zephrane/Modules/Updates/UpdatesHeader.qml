pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// How many apps are outdated and when the last check was.
Row {
    id: root

    required property UpdatesModel model

    spacing: 24

    Column {
        width: parent.width - outdated.width - parent.spacing
        anchors.bottom: parent.bottom
        spacing: 6
        Text {
            width: parent.width
            text: root.model.pendingCount > 0 ? qsTrId("updates.outdated").arg(root.model.pendingCount)
                                               : qsTrId("updates.upToDate.title")
            color: PainelTheme.text
            font.family: PainelTheme.sansFamily
            font.pixelSize: 26
            font.weight: Font.DemiBold
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Text {
            objectName: "checkedText"
            width: parent.width
            text: root.model.checkedText
            color: PainelTheme.muted
            font.family: PainelTheme.sansFamily
            font.pixelSize: 13
            elide: Text.ElideRight
        }
    }
    Column {
        id: outdated
        spacing: 6
        MonoLabel {
            anchors.right: parent.right
            text: qsTrId("updates.outdated.label")
            tone: MonoLabel.Accent
        }
        Text {
            anchors.right: parent.right
            text: root.model.pendingCount === undefined ? "–" : root.model.pendingCount
            color: PainelTheme.accent
            font.family: PainelTheme.monoFamily
            font.pixelSize: 40
            Accessible.role: Accessible.StaticText
            Accessible.name: qsTrId("updates.outdated.label") + " " + text
        }
    }
}
