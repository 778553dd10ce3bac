pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Zephrane

// The interface language, and the notice with a restart key while the choice differs from the
// language the program runs in.
ColumnLayout {
    id: root

    readonly property alias model: choice

    spacing: 8

    LanguageChoice { id: choice }

    RowLayout {
        Layout.fillWidth: true
        Layout.topMargin: 4
        spacing: 16

        Text {
            Layout.fillWidth: true
            text: qsTrId("settings.language.title")
            color: PainelTheme.text
            font.family: PainelTheme.sansFamily
            font.pixelSize: 13
            elide: Text.ElideRight
        }

        SettingsChoice {
            options: choice.options
            current: choice.choice
            accessibleName: qsTrId("settings.language.title")
            onChosen: raw => choice.chooseRaw(raw)
        }
    }

    Rectangle {
        Layout.fillWidth: true
        Layout.bottomMargin: 4
        visible: choice.needsRelaunch
        implicitHeight: notice.implicitHeight + 16
        radius: 7
        color: PainelTheme.deep
        border.width: 1
        border.color: PainelTheme.warn

        RowLayout {
            id: notice
            anchors.fill: parent
            anchors.margins: 8
            anchors.leftMargin: 12
            spacing: 12

            Rectangle {
                width: 7
                height: 7
                radius: 3.5
                color: PainelTheme.warn
            }

            Text {
                Layout.fillWidth: true
                text: qsTrId("settings.language.relaunchNotice")
                color: PainelTheme.text
                font.family: PainelTheme.sansFamily
                font.pixelSize: 12
                wrapMode: Text.WordWrap
                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
            }

            PainelButton {
                kind: PainelButtonKind.Accent
                text: qsTrId("settings.language.relaunch")
                onClicked: choice.relaunch()
            }
        }
    }
}
