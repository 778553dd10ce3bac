pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// Where removed things go and the program's habits; every choice is stored the moment it is made.
FocusScope {
    id: root
    required property Preferences preferences

    Column {
        anchors.fill: parent
        spacing: 14
        OnboardingHeadline {
            lines: [qsTrId("onboarding.preferences.headline1"), qsTrId("onboarding.preferences.headline2")]
        }
        Row {
            spacing: 12
            Repeater {
                model: [
                    { raw: "trash", title: qsTrId("onboarding.preferences.trash"),
                      detail: qsTrId("onboarding.preferences.trash.detail"), badge: qsTrId("onboarding.preferences.recommended") },
                    { raw: "delete", title: qsTrId("onboarding.preferences.delete"),
                      detail: qsTrId("onboarding.preferences.delete.detail"), badge: "" }
                ]
                Rectangle {
                    id: card
                    required property var modelData
                    required property int index
                    readonly property bool chosen: root.preferences.cleanDestination === modelData.raw
                    objectName: "destination-" + modelData.raw
                    width: 260
                    height: 92
                    radius: 6
                    color: chosen ? PainelTheme.raised : PainelTheme.panel
                    border.color: chosen ? PainelTheme.accent : PainelTheme.border
                    border.width: chosen ? 2 : 1
                    focus: index === 0
                    activeFocusOnTab: true
                    Keys.onSpacePressed: root.preferences.cleanDestination = modelData.raw
                    Keys.onReturnPressed: root.preferences.cleanDestination = modelData.raw
                    Accessible.role: Accessible.RadioButton
                    Accessible.name: modelData.title
                    Accessible.description: modelData.detail
                    Accessible.checkable: true
                    Accessible.checked: chosen
                    Accessible.onPressAction: root.preferences.cleanDestination = modelData.raw
                    TapHandler { onTapped: root.preferences.cleanDestination = card.modelData.raw }
                    Column {
                        anchors.fill: parent
                        anchors.margins: 12
                        spacing: 6
                        Row {
                            spacing: 8
                            Text {
                                text: card.modelData.title
                                color: PainelTheme.text
                                font.family: PainelTheme.sansFamily
                                font.pixelSize: 14
                                font.weight: Font.DemiBold
                            }
                            MonoLabel {
                                anchors.verticalCenter: parent.verticalCenter
                                visible: card.modelData.badge.length > 0
                                text: card.modelData.badge
                                tone: MonoLabel.Accent
                            }
                        }
                        Text {
                            width: parent.width
                            text: card.modelData.detail
                            color: PainelTheme.muted
                            font.family: PainelTheme.sansFamily
                            font.pixelSize: 12
                            wrapMode: Text.WordWrap
                        }
                    }
                    PainelFocusRing { target: card }
                }
            }
        }
        Repeater {
            model: [
                { key: "showMenuBarAgent", title: qsTrId("onboarding.preferences.menuBar"), detail: qsTrId("onboarding.preferences.menuBar.detail") },
                { key: "launchAtLogin", title: qsTrId("settings.toggle.launchAtLogin"), detail: qsTrId("onboarding.preferences.login.detail") },
                { key: "notifyOutdatedApps", title: qsTrId("settings.toggle.outdatedApps"), detail: qsTrId("onboarding.preferences.outdated.detail") }
            ]
            Column {
                id: toggle
                required property var modelData
                width: Math.min(root.width, 540)
                SettingsSwitchRow {
                    objectName: "toggle-" + toggle.modelData.key
                    width: parent.width
                    title: toggle.modelData.title
                    checked: root.preferences[toggle.modelData.key]
                    onToggled: (on) => root.preferences[toggle.modelData.key] = on
                }
                MonoLabel { width: parent.width; text: toggle.modelData.detail; wrapMode: Text.WordWrap }
            }
        }
    }
}
