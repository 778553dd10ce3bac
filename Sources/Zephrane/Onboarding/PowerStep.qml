import QtQuick
import Zephrane

// A dark panel and its switch: pressing it lights the logo, then the flow moves on.
FocusScope {
    id: root
    required property OnboardingFlow flow

    Column {
        anchors.centerIn: parent
        spacing: 24
        width: Math.min(parent.width, 520)

        DotMatrixLogo {
            objectName: "powerLogo"
            anchors.horizontalCenter: parent.horizontalCenter
            implicitHeight: 48
            isOn: root.flow.powered
        }
        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: qsTrId("onboarding.power.tagline")
            color: PainelTheme.text
            font.family: PainelTheme.sansFamily
            font.pixelSize: 18
            wrapMode: Text.WordWrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        PainelButton {
            objectName: "powerKey"
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTrId("onboarding.power.button")
            kind: PainelButtonKind.Accent
            focus: true
            enabled: !root.flow.powered
            onClicked: root.flow.powerOn()
        }
        MonoLabel {
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTrId("onboarding.power.hint")
        }
    }

    // The logo lights one letter after another; the next screen waits for it.
    Timer {
        running: root.flow.powered
        interval: PainelTheme.reducedMotion ? 0 : 1100
        onTriggered: root.flow.next()
    }
}
