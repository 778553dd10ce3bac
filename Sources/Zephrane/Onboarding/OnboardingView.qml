import QtQuick
import Zephrane

// The five first-run screens under a top bar with the step dots, and the back and continue keys.
FocusScope {
    id: root
    required property OnboardingFlow flow
    required property AppModel appModel
    signal finished(bool scan)

    Rectangle { anchors.fill: parent; color: PainelTheme.bg }
    // Swallows the pointer so nothing behind the flow is reached.
    MouseArea { anchors.fill: parent; acceptedButtons: Qt.AllButtons }

    Row {
        id: topBar
        anchors.top: parent.top
        anchors.left: parent.left
        anchors.margins: 24
        spacing: 16
        visible: root.flow.step > 0

        OnboardingStepDots {
            anchors.verticalCenter: parent.verticalCenter
            step: root.flow.step
            count: root.flow.count
        }
        MonoLabel {
            objectName: "onboardingProgress"
            anchors.verticalCenter: parent.verticalCenter
            text: root.flow.progressText
        }
        MonoLabel {
            objectName: "onboardingSection"
            anchors.verticalCenter: parent.verticalCenter
            text: qsTrId("onboarding.topBar").arg(root.flow.section)
            tone: MonoLabel.Accent
        }
    }

    Loader {
        id: page
        objectName: "onboardingPage"
        anchors.top: topBar.bottom
        anchors.bottom: navBar.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 32
        focus: true
        sourceComponent: [powerStep, channelsStep, diskStep, preferencesStep, readyStep][root.flow.step]
        Accessible.role: Accessible.Pane
        Accessible.name: root.flow.title
    }

    Row {
        id: navBar
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        anchors.margins: 24
        spacing: 12
        height: 40
        visible: root.flow.step > 0
        PainelButton {
            objectName: "onboardingBack"
            text: qsTrId("onboarding.back")
            activeFocusOnTab: true
            onClicked: root.flow.back()
        }
        PainelButton {
            objectName: "onboardingContinue"
            visible: root.flow.step > 0 && root.flow.step < root.flow.count - 1
            text: qsTrId("onboarding.continue")
            kind: PainelButtonKind.Accent
            activeFocusOnTab: true
            onClicked: root.flow.next()
        }
    }

    Component { id: powerStep; PowerStep { flow: root.flow } }
    Component { id: channelsStep; ChannelsStep { flow: root.flow } }
    Component { id: diskStep; DiskAccessStep { flow: root.flow } }
    Component { id: preferencesStep; PreferencesStep { preferences: root.appModel.preferences } }
    Component {
        id: readyStep
        ReadyStep {
            preferences: root.appModel.preferences
            onFinished: (scan) => root.finished(scan)
        }
    }
}
