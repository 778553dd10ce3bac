import QtQuick
import Zephrane

// The end of the flow: what was set up, and the first scan or straight to Home.
FocusScope {
    id: root
    required property Preferences preferences
    signal finished(bool scan)
    readonly property bool granted: FullDiskAccessMonitor.isGranted

    Column {
        anchors.fill: parent
        spacing: 14
        OnboardingHeadline {
            lines: [qsTrId("onboarding.ready.headline1"), qsTrId("onboarding.ready.headline2"), qsTrId("onboarding.ready.headline3")]
        }
        OnboardingBody { text: qsTrId("onboarding.ready.body") }
        OnboardingChecklist {
            objectName: "readySelfTest"
            title: qsTrId("onboarding.ready.selfTest")
            lines: [
                { id: "diskAccess", label: qsTrId("onboarding.check.diskAccess"),
                  status: root.granted ? qsTrId("onboarding.check.ok") : qsTrId("onboarding.check.skipped"),
                  tone: root.granted ? "ok" : "warn" },
                { id: "destination", label: qsTrId("onboarding.check.destination"),
                  status: root.preferences.cleanDestination === "delete" ? qsTrId("onboarding.check.delete") : qsTrId("onboarding.check.trash"),
                  tone: "ok" },
                { id: "menuBar", label: qsTrId("onboarding.check.menuBar"),
                  status: root.preferences.showMenuBarAgent ? qsTrId("onboarding.check.on") : qsTrId("onboarding.check.off"),
                  tone: root.preferences.showMenuBarAgent ? "ok" : "muted" }
            ]
        }
        Text {
            text: qsTrId("onboarding.ready.question")
            color: PainelTheme.text
            font.family: PainelTheme.sansFamily
            font.pixelSize: 16
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Row {
            spacing: 12
            PainelButton {
                objectName: "readyScanKey"
                text: qsTrId("onboarding.ready.scan")
                kind: PainelButtonKind.Accent
                focus: true
                onClicked: root.finished(true)
            }
            PainelButton {
                objectName: "readyHomeKey"
                text: qsTrId("onboarding.ready.goHome")
                activeFocusOnTab: true
                onClicked: root.finished(false)
            }
        }
        OnboardingBody { text: qsTrId("onboarding.ready.firstScan") }
    }
}
