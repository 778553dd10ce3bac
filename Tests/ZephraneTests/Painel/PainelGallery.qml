pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Window
import Zephrane

// Every piece of the panel kit in its states, for the gallery test to load and photograph.
Window {
    id: root

    property bool increasedContrast: false
    property string locale: "en"

    width: 1040
    height: 760
    visible: true
    color: PainelTheme.bg

    Binding { target: PainelTheme; property: "increasedContrast"; value: root.increasedContrast }

    component Caption: MonoLabel { tone: MonoLabel.Faint }

    Row {
        x: 24
        y: 24
        spacing: 36

        Column {
            spacing: 14
            width: 300

            DotMatrixLogo { objectName: "logo" }
            Caption { text: "check lamps: off, on, mixed, focused" }
            Row {
                spacing: 14
                CheckLED { label: "off" }
                CheckLED { label: "on"; isOn: true }
                CheckLED { label: "mixed"; isMixed: true }
                CheckLED { objectName: "focusedLamp"; label: "focused"; isOn: true }
            }
            Caption { text: "keys" }
            Row {
                spacing: 8
                PainelButton { text: "Scan"; kind: PainelButtonKind.Accent; size: PainelButtonSize.Large }
                PainelButton { text: "Open"; kind: PainelButtonKind.Light; size: PainelButtonSize.Small }
                PainelButton { text: "Off"; enabled: false }
            }
            PainelButton { objectName: "focusedKey"; text: "Focused key" }
            Caption { text: "hold to confirm: idle, filling, disabled" }
            HoldToConfirmButton {
                objectName: "holdIdle"
                width: 260
                title: "Delete for good"
                confirmTitle: "Delete 1.2 GB for good?"
                confirmMessage: "The selected items are removed at once and can't be brought back from the trash."
            }
            HoldToConfirmButton {
                objectName: "holdFilling"
                width: 260
                title: "Empty trash"
                customLabel: "Hold to empty"
                size: PainelButtonSize.Large
            }
            HoldToConfirmButton {
                width: 260
                title: "Delete for good"
                enabled: false
                size: PainelButtonSize.Small
            }
        }

        Column {
            spacing: 14
            width: 320

            Caption { text: "led number: bytes" }
            Rectangle {
                width: 320
                height: bytesNumber.implicitHeight + 24
                radius: 8
                color: PainelTheme.deep
                LEDNumber {
                    id: bytesNumber
                    objectName: "bytesNumber"
                    x: 14
                    anchors.verticalCenter: parent.verticalCenter
                    size: 56
                    locale: root.locale
                    bytes: 1234567890
                    label: "Selected"
                }
            }
            Caption { text: "led number: parts" }
            LEDNumber { size: 40; integer: "42"; fraction: "7"; unit: "%"; spoken: "42.7 percent"; color: PainelTheme.accent }
            LEDNumber { width: 320; size: 18; integer: "1,024"; unit: "files"; label: "Found"; horizontalAlignment: Text.AlignRight }
        }

        Column {
            spacing: 14
            width: 300

            Caption { text: "led meters" }
            LEDMeter { objectName: "meter"; width: 300; fraction: 0.62; cells: 24; accentTail: 4; label: "Disk" }
            LEDMeter { width: 300; fraction: 0.003; cells: 24; tint: LEDMeter.Muted }
            LEDMeter { width: 300; height: 14; fraction: 0.97; cells: 30; spacing: 3; cornerRadius: 0; tint: LEDMeter.Accent }
            Item {
                width: 300
                height: 12
                LayoutMirroring.enabled: true
                LayoutMirroring.childrenInherit: true
                LEDMeter { objectName: "mirroredMeter"; width: 300; height: 12; fraction: 0.3; cells: 20; valueText: "right to left" }
            }
            Row {
                spacing: 12
                LEDMeter { axis: Qt.Vertical; width: 10; height: 120; fraction: 0.75; cells: 12; accentTail: 3 }
                LEDMeter { axis: Qt.Vertical; width: 24; height: 120; fraction: 0.5; cells: 8; fillsCrossAxis: false; cornerRadius: 3 }
            }
        }
    }
}
