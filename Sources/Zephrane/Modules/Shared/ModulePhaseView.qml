// Not Bound: Qt 6.4 refuses to let a Loader instantiate bound components declared beside it.
import QtQuick
import Zephrane

// The one screen every scanning-and-removing channel shares: it shows the panel of the model's
// phase, the channel's own results in `results` and `confirm` (with the sheet above them), and
// speaks each change of screen.
Item {
    id: root

    required property ModulePhaseModel model
    property string channelTitle
    property string idleMessage
    property string emptyMessage
    property string confirmNote
    // The channel's own results view; it reaches its model through its own scope.
    property Component results
    readonly property string phase: model.painelPhase

    PhaseAnnouncements { model: root.model }

    Loader {
        id: panel
        objectName: "phasePanel"
        anchors.fill: parent
        focus: true
        sourceComponent: ({
            idle: idlePanel, scanning: scanningPanel, cleaning: cleaningPanel,
            success: successPanel, empty: emptyPanel
        })[root.phase] ?? null
    }

    Loader {
        id: resultsView
        objectName: "resultsView"
        anchors.fill: parent
        active: root.phase === "results" || root.phase === "confirm"
        sourceComponent: root.results
        enabled: root.phase === "results"
        focus: root.phase === "results"
    }

    Loader {
        objectName: "confirmSheet"
        anchors.fill: parent
        active: root.phase === "confirm"
        focus: active
        sourceComponent: confirmSheet
    }

    Component { id: idlePanel; IdlePanel { model: root.model; channelTitle: root.channelTitle; idleMessage: root.idleMessage } }
    Component { id: scanningPanel; ScanningPanel { model: root.model } }
    Component { id: cleaningPanel; CleaningPanel { model: root.model; channelTitle: root.channelTitle } }
    Component { id: successPanel; CleanupSuccessPanel { model: root.model } }
    Component { id: emptyPanel; EmptyPanel { model: root.model; emptyMessage: root.emptyMessage } }
    Component { id: confirmSheet; ConfirmCleanupSheet { model: root.model; confirmNote: root.confirmNote } }
}
