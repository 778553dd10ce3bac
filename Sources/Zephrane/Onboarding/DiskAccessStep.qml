import QtQuick
import Zephrane

// Full disk access: how to grant it while it is missing, the granted state with its self-test once
// given. The skip key stays either way.
FocusScope {
    id: root
    required property OnboardingFlow flow
    readonly property bool granted: FullDiskAccessMonitor.isGranted

    Component.onCompleted: { FullDiskAccessMonitor.refresh(); FullDiskAccessMonitor.watch() }
    Component.onDestruction: FullDiskAccessMonitor.stopWatching()

    Column {
        anchors.fill: parent
        spacing: 14
        OnboardingHeadline {
            lines: root.granted ? [qsTrId("onboarding.disk.granted")]
                                : [qsTrId("onboarding.disk.headline1"), qsTrId("onboarding.disk.headline2")]
        }
        OnboardingBody { text: root.granted ? qsTrId("onboarding.disk.grantedBody") : qsTrId("onboarding.disk.body") }
        Column {
            visible: !root.granted
            spacing: 6
            Repeater {
                model: [qsTrId("onboarding.disk.step1"), qsTrId("onboarding.disk.step2"), qsTrId("onboarding.disk.step3")]
                Text {
                    required property string modelData
                    required property int index
                    text: (index + 1) + ". " + modelData
                    color: PainelTheme.text
                    font.family: PainelTheme.sansFamily
                    font.pixelSize: 13
                }
            }
        }
        PainelButton {
            objectName: "diskSettingsKey"
            visible: !root.granted
            text: qsTrId("onboarding.disk.openSettings")
            activeFocusOnTab: true
            onClicked: FullDiskAccessMonitor.openSettings()
        }
        MonoLabel {
            visible: !root.granted
            text: qsTrId("onboarding.disk.waiting")
            tone: MonoLabel.Warn
        }
        OnboardingChecklist {
            objectName: "diskSelfTest"
            title: qsTrId("onboarding.disk.selfTest")
            lines: [{ id: "diskAccess", label: qsTrId("onboarding.check.diskAccess"),
                      status: root.granted ? qsTrId("onboarding.check.ok") : qsTrId("onboarding.check.pending"),
                      tone: root.granted ? "ok" : "muted" }]
        }
        OnboardingBody { text: qsTrId("onboarding.disk.safety") }
        PainelButton {
            objectName: "diskSkipKey"
            text: qsTrId("onboarding.disk.skip")
            focus: true
            onClicked: root.flow.next()
        }
    }
}
