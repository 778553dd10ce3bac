pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Window
import Zephrane

// The one main window: a panel with no system title bar; its background drags the window.
Window {
    id: main
    objectName: "main"

    required property AppModel appModel

    title: qsTrId("Zephrane")
    width: 1120
    height: 740
    minimumWidth: mainView.implicitMinimumWidth
    minimumHeight: mainView.implicitMinimumHeight
    visible: true
    flags: Qt.Window | Qt.FramelessWindowHint
    color: PainelTheme.bg

    // Every window of this engine shares one theme, coloured by the user's accent.
    Component.onCompleted: PainelTheme.follow(appModel.preferences)

    DragHandler {
        target: null
        grabPermissions: PointerHandler.TakeOverForbidden
        onActiveChanged: if (active) main.startSystemMove()
    }

    MainView {
        id: mainView
        anchors.fill: parent
        visible: gate.opacity < 1
        appModel: main.appModel
        window: main
        onSettingsRequested: main.openSettings()
    }

    OnboardingGate {
        id: gate
        anchors.fill: parent
        appModel: main.appModel
    }

    function openSettings() {
        settingsView.show()
        settingsView.raise()
        settingsView.requestActivate()
    }

    SettingsView {
        id: settingsView
        visible: false
        preferences: main.appModel.preferences
        trayAvailable: main.appModel.trayAvailable
        onWelcomeRequested: {
            main.show()
            main.raise()
            main.requestActivate()
        }
    }

    Shortcut {
        sequence: "Ctrl+,"
        context: Qt.ApplicationShortcut
        onActivated: main.openSettings()
    }

    GoShortcuts {
        commands: mainView.goCommands
    }

    AnnouncementNotice {}
}
