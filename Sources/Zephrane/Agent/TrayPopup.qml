pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import QtQuick.Window
import Zephrane

// The tray's popup: the machine at a glance, its largest memory users and a few ways into the
// main window. It never deletes anything itself.
Window {
    id: popup
    objectName: "trayPopup"

    required property TrayAgent agent
    required property AppModel appModel
    readonly property MenuBarModel menu: agent.menu
    readonly property var junk: appModel.junk

    width: 400
    height: column.implicitHeight + 32
    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
    color: PainelTheme.bg
    title: qsTrId("menubar.title")

    // A popup goes when the user turns elsewhere, as a menu does.
    onActiveChanged: if (!active && visible) popup.agent.hidePopup()

    // A scan started from here is announced when it finds junk, since its results show elsewhere.
    property bool scanStartedHere: false
    Connections {
        target: popup.junk
        function onPhaseChanged() {
            if (popup.junk.phase === "scanning" || !popup.scanStartedHere)
                return
            popup.scanStartedHere = false
            if (popup.junk.phase === "ready" && popup.junk.foundBytes > 0)
                Announcer.say(qsTrId("menubar.junk.announce.found").arg(ByteFormat.spoken(popup.junk.foundBytes)))
        }
    }

    function percent(fraction) { return qsTrId("menubar.meter.value").arg(Math.round(fraction * 100)) }
    function rate(bytesPerSecond) { return ByteFormat.text(bytesPerSecond) }

    Shortcut {
        sequence: "Escape"
        onActivated: popup.agent.hidePopup()
    }

    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.width: 1
        border.color: PainelTheme.border
    }

    ColumnLayout {
        id: column
        x: 16
        y: 16
        width: popup.width - 32
        spacing: 12

        // Header with the status light.
        RowLayout {
            Layout.fillWidth: true
            spacing: 8
            Text {
                Layout.fillWidth: true
                text: qsTrId("Zephrane")
                color: PainelTheme.text
                font.family: PainelTheme.dotFamily
                font.pixelSize: 16
            }
            Rectangle {
                width: 8
                height: 8
                radius: 4
                color: popup.menu.diskAlmostFull ? PainelTheme.warn : PainelTheme.ok
            }
            Text {
                objectName: "status"
                text: popup.menu.diskAlmostFull ? qsTrId("menubar.status.diskAlmostFull") : qsTrId("menubar.status.ok")
                color: PainelTheme.muted
                font.family: PainelTheme.monoFamily
                font.pixelSize: 11
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: 8
            MenuBarMeterCard {
                objectName: "cpuCard"
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                Layout.fillHeight: true
                title: qsTrId("menubar.meter.cpu")
                valueText: popup.menu.hasRates
                           ? popup.percent(popup.menu.cpuUsage) + " · " + qsTrId("menubar.cpu.cores").arg(popup.menu.cpuCores)
                           : qsTrId("menubar.measuring")
                fraction: popup.menu.hasRates ? popup.menu.cpuUsage : -1
                spokenName: qsTrId("menubar.meter.cpu.a11y").arg(popup.menu.hasRates ? popup.percent(popup.menu.cpuUsage)
                                                                                    : qsTrId("menubar.measuring"))
            }
            MenuBarMeterCard {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                Layout.fillHeight: true
                title: qsTrId("menubar.meter.memory")
                valueText: qsTrId("menubar.memory.detail").arg(ByteFormat.text(popup.menu.memoryUsed))
                                                          .arg(ByteFormat.text(popup.menu.memoryTotal))
                fraction: popup.menu.memoryFraction
                spokenName: qsTrId("menubar.meter.memory.a11y").arg(popup.percent(popup.menu.memoryFraction))
            }
            MenuBarMeterCard {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                Layout.fillHeight: true
                title: qsTrId("menubar.meter.disk")
                valueText: qsTrId("menubar.disk.free").arg(ByteFormat.text(popup.menu.diskFree))
                fraction: popup.menu.diskUsedFraction
                spokenName: qsTrId("menubar.meter.disk.a11y").arg(popup.percent(popup.menu.diskUsedFraction))
            }
        }

        // Network and battery.
        RowLayout {
            Layout.fillWidth: true
            Text {
                objectName: "network"
                Layout.fillWidth: true
                text: popup.menu.hasRates ? qsTrId("menubar.network.value").arg(popup.rate(popup.menu.downloadRate))
                                                                             .arg(popup.rate(popup.menu.uploadRate))
                                          : qsTrId("menubar.measuring")
                color: PainelTheme.muted
                font.family: PainelTheme.monoFamily
                font.pixelSize: 11
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            Text {
                visible: popup.menu.hasBattery
                text: (popup.menu.batteryCharging ? qsTrId("menubar.battery.charging") : qsTrId("menubar.battery.short"))
                      .arg(Math.round(popup.menu.batteryLevel * 100))
                color: PainelTheme.muted
                font.family: PainelTheme.monoFamily
                font.pixelSize: 11
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }

        Rectangle { Layout.fillWidth: true; height: 1; color: PainelTheme.divider }

        // Memory hogs.
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2
            Text {
                text: qsTrId("menubar.hogs.section")
                color: PainelTheme.muted
                font.family: PainelTheme.monoFamily
                font.pixelSize: 10
                font.letterSpacing: 1
                font.capitalization: Font.AllUppercase
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Text {
                Layout.fillWidth: true
                text: popup.menu.hogs.length > 0 ? qsTrId("menubar.hogs.title") : qsTrId("menubar.hogs.empty")
                color: PainelTheme.faint
                font.family: PainelTheme.sansFamily
                font.pixelSize: 11
                wrapMode: Text.WordWrap
            }
            Repeater {
                model: popup.menu.hogs
                MenuBarHogRow {
                    required property var modelData
                    Layout.fillWidth: true
                    menu: popup.menu
                    pid: modelData.pid
                    name: modelData.name
                    bytes: modelData.bytes
                }
            }
        }

        Rectangle { Layout.fillWidth: true; height: 1; color: PainelTheme.divider }

        // Actions.
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 8
            PainelButton {
                id: junkKey
                objectName: "junkAction"
                Layout.fillWidth: true
                kind: PainelButtonKind.Accent
                readonly property string phase: popup.junk.phase
                readonly property bool hasJunk: phase === "ready" && popup.junk.foundBytes > 0
                enabled: phase !== "scanning" && phase !== "cleaning"
                text: phase === "scanning" ? qsTrId("menubar.action.scanning")
                    : phase === "cleaning" ? qsTrId("menubar.action.cleaning")
                    : hasJunk ? qsTrId("menubar.action.cleanJunk").arg(ByteFormat.text(popup.junk.foundBytes))
                    : phase === "ready" ? qsTrId("menubar.action.rescanJunk")
                    : qsTrId("menubar.action.scanJunk")
                Accessible.description: hasJunk ? qsTrId("menubar.action.cleanJunk.hint") : ""
                onClicked: {
                    if (hasJunk) {
                        popup.agent.openJunk()
                    } else {
                        popup.scanStartedHere = true
                        popup.junk.startScan()
                    }
                }
            }
            RowLayout {
                Layout.fillWidth: true
                spacing: 8
                PainelButton {
                    objectName: "emptyTrashAction"
                    Layout.fillWidth: true
                    text: qsTrId("menubar.action.emptyTrash")
                    Accessible.description: qsTrId("menubar.action.emptyTrash.hint")
                    onClicked: popup.agent.openTrash()
                }
                PainelButton {
                    objectName: "openAction"
                    Layout.fillWidth: true
                    text: qsTrId("menubar.action.open")
                    onClicked: popup.agent.open()
                }
            }
        }
    }
}
