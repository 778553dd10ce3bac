pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Zephrane

// The program's mark and version, the update key, and the way back to the welcome.
ColumnLayout {
    id: root

    required property Preferences preferences
    signal welcomeRequested

    spacing: 12

    RowLayout {
        Layout.fillWidth: true
        Layout.topMargin: 6
        spacing: 14

        Rectangle {
            width: 44
            height: 44
            radius: 10
            color: PainelTheme.deep
            border.width: 1
            border.color: PainelTheme.border
            Accessible.ignored: true

            Text {
                anchors.centerIn: parent
                text: "Z"
                color: PainelTheme.accent
                font.family: PainelTheme.dotFamily
                font.pixelSize: 30
                font.weight: Font.Bold
            }
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 6

            DotMatrixLogo {
                implicitHeight: 18
                animatesPowerOn: false
            }
            MonoLabel {
                text: qsTrId("settings.about.version").arg(Qt.application.version)
                tone: MonoLabel.Muted
            }
        }
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: 12

        // No update service is built into this edition of the program, so the key stays off.
        PainelButton {
            text: qsTrId("settings.about.checkForUpdates")
            enabled: false
        }
        Text {
            Layout.fillWidth: true
            text: qsTrId("settings.about.checkForUpdates.off")
            color: PainelTheme.faint
            font.family: PainelTheme.sansFamily
            font.pixelSize: 12
            wrapMode: Text.WordWrap
        }
    }

    PainelButton {
        Layout.bottomMargin: 6
        text: qsTrId("settings.about.welcome")
        onClicked: {
            root.preferences.onboardingDone = false
            root.welcomeRequested()
        }
    }
}
