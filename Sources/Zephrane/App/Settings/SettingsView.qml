pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import QtQuick.Window
import Zephrane

// The settings window: switches, cleaning, disk access, about; every change is kept at once.
Window {
    id: root
    objectName: "settings"

    // Asks the program to show the main window, where the welcome runs again.
    signal welcomeRequested

    title: qsTrId("settings.title")
    width: 600
    height: Math.min(content.implicitHeight + 48, 820)
    minimumWidth: 520
    minimumHeight: 360
    color: PainelTheme.bg

    onVisibleChanged: if (visible) prefs.refreshLaunchAtLogin()

    Preferences { id: prefs }

    Flickable {
        id: flick
        anchors.fill: parent
        contentWidth: width
        contentHeight: content.implicitHeight + 48
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        ColumnLayout {
            id: content
            x: 24
            y: 24
            width: flick.width - 48
            spacing: 22

            SettingsSection {
                Layout.fillWidth: true
                title: qsTrId("settings.switches.section")

                SettingsSwitchRow {
                    Layout.fillWidth: true
                    title: qsTrId("settings.toggle.menuBar")
                    checked: prefs.showMenuBarAgent
                    onToggled: on => prefs.showMenuBarAgent = on
                }
                SettingsRule {}
                SettingsSwitchRow {
                    Layout.fillWidth: true
                    title: qsTrId("settings.toggle.launchAtLogin")
                    checked: prefs.launchAtLogin
                    onToggled: on => prefs.launchAtLogin = on
                }
                SettingsRule {}
                SettingsSwitchRow {
                    Layout.fillWidth: true
                    title: qsTrId("settings.toggle.outdatedApps")
                    checked: prefs.notifyOutdatedApps
                    onToggled: on => prefs.notifyOutdatedApps = on
                }
                SettingsRule {}
                LanguageSettingsRow {
                    Layout.fillWidth: true
                }
            }

            SettingsSection {
                Layout.fillWidth: true
                title: qsTrId("settings.cleaning.section")

                ColumnLayout {
                    Layout.fillWidth: true
                    Layout.topMargin: 6
                    spacing: 4
                    Text {
                        Layout.fillWidth: true
                        text: qsTrId("settings.cleaning.title")
                        color: PainelTheme.text
                        font.family: PainelTheme.sansFamily
                        font.pixelSize: 13
                        wrapMode: Text.WordWrap
                    }
                    Text {
                        Layout.fillWidth: true
                        text: qsTrId("settings.cleaning.subtitle")
                        color: PainelTheme.muted
                        font.family: PainelTheme.sansFamily
                        font.pixelSize: 12
                        wrapMode: Text.WordWrap
                    }
                }
                SettingsChoice {
                    Layout.fillWidth: true
                    Layout.bottomMargin: 6
                    Layout.topMargin: 4
                    accessibleName: qsTrId("settings.cleaning.title")
                    options: [
                        { raw: "trash", title: qsTrId("settings.cleaning.trash") },
                        { raw: "delete", title: qsTrId("settings.cleaning.delete") }
                    ]
                    current: prefs.cleanDestination
                    onChosen: raw => prefs.cleanDestination = raw
                }
                SettingsRule {}
                RowLayout {
                    Layout.fillWidth: true
                    implicitHeight: 44
                    spacing: 16
                    Text {
                        Layout.fillWidth: true
                        text: qsTrId("settings.accent.title")
                        color: PainelTheme.text
                        font.family: PainelTheme.sansFamily
                        font.pixelSize: 13
                        elide: Text.ElideRight
                    }
                    AccentPicker {
                        preferences: prefs
                    }
                }
            }

            SettingsSection {
                Layout.fillWidth: true
                title: qsTrId("settings.disk.section")

                DiskAccessSettingsRow {
                    Layout.fillWidth: true
                }
            }

            SettingsSection {
                Layout.fillWidth: true
                title: qsTrId("settings.about.section")

                AboutSettingsRow {
                    Layout.fillWidth: true
                    preferences: prefs
                    onWelcomeRequested: root.welcomeRequested()
                }
            }
        }
    }
}
