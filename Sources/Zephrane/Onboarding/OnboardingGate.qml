import QtQuick
import Zephrane

// Stands in front of the channels until the first-run flow is done; the welcome key in the settings
// clears `onboardingDone`, which brings it back at a dark power screen.
Item {
    id: root
    required property AppModel appModel
    readonly property bool done: appModel.preferences.onboardingDone

    visible: opacity > 0
    opacity: done ? 0 : 1
    Behavior on opacity {
        enabled: !PainelTheme.reducedMotion
        NumberAnimation { duration: 400; easing.type: Easing.OutCubic }
    }
    onDoneChanged: {
        if (!done) {
            flow.restart()
            view.forceActiveFocus()
        }
    }

    function finish(scan: bool) {
        root.appModel.openRaw(0)
        root.appModel.preferences.onboardingDone = true
        if (scan)
            root.appModel.startSmartScan()
    }

    OnboardingFlow { id: flow }

    OnboardingView {
        id: view
        anchors.fill: parent
        flow: flow
        appModel: root.appModel
        enabled: !root.done
        focus: !root.done
        onFinished: (scan) => root.finish(scan)
    }
}
