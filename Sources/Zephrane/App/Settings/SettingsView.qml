pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import QtQuick.Window
import Zephrane

// The settings window: switches, cleaning, disk access, about; every change is kept at once.
Window {
    id: root
    objectName: "settings"

    // The program's one set of preferences: what changes here shows in every channel at once.
    required property Preferences preferences
    // Without a tray the agent switch has no effect, and the window says so beneath it.
    property bool trayAvailable: true
    // Asks the program to show the main window, where the welcome runs again.
    signal welcomeRequested

    title: qsTrId("settings.title")
    width: 600
    height: Math.min(content.implicitHeight + 48, 820)
    minimumWidth: 520
    minimumHeight: 360
    color: PainelTheme.bg

    onVisibleChanged: if (visible) root.preferences.refreshLaunchAtLogin()

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
                    checked: root.preferences.showMenuBarAgent
                    onToggled: on => root.preferences.showMenuBarAgent = on
                }
                Text {
                    objectName: "noTrayNote"
                    Layout.fillWidth: true
                    visible: !root.trayAvailable
                    text: qsTrId("settings.toggle.menuBar.noTray")
                    color: PainelTheme.muted
                    font.family: PainelTheme.sansFamily
                    font.pixelSize: 12
                    wrapMode: Text.WordWrap
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
                SettingsRule {}
                SettingsSwitchRow {
                    Layout.fillWidth: true
                    title: qsTrId("settings.toggle.launchAtLogin")
                    checked: root.preferences.launchAtLogin
                    onToggled: on => root.preferences.launchAtLogin = on
                }
                SettingsRule {}
                SettingsSwitchRow {
                    Layout.fillWidth: true
                    title: qsTrId("settings.toggle.outdatedApps")
                    checked: root.preferences.notifyOutdatedApps
                    onToggled: on => root.preferences.notifyOutdatedApps = on
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
                    current: root.preferences.cleanDestination
                    onChosen: raw => root.preferences.cleanDestination = raw
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
                        preferences: root.preferences
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
                    preferences: root.preferences
                    onWelcomeRequested: root.welcomeRequested()
                }
            }
        }
    }
}
