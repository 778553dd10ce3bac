pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Zephrane

// The key that guards what can't be undone: held down, it fills and acts once full; pressed from the
// keyboard or by a screen reader, it asks in a dialog instead. The timing is HoldToConfirmController's.
Item {
    id: root

    property string title
    property string confirmTitle
    property string confirmMessage
    // The dialog's key; the key's own title when not set.
    property string confirmAction
    // Seconds the pointer must stay down.
    property real holdDuration: 1.5
    property int size: PainelButtonSize.Regular
    // Replaces the title on the key itself when set.
    property string customLabel
    property real radius: 6
    signal action

    readonly property HoldToConfirmController controller: controller
    readonly property real progress: controller.progress
    readonly property bool fired: controller.fired
    readonly property bool gaveUp: controller.gaveUp
    readonly property bool confirming: controller.confirming
    readonly property bool flashing: controller.flash
    onConfirmingChanged: confirming ? dialog.open() : dialog.close()
    onFlashingChanged: if (flashing) flashFade.restart()

    // The fill as shown: it follows the hold exactly, and springs back after a release.
    property real shownProgress: controller.progress
    Behavior on shownProgress {
        enabled: !controller.holding && !PainelTheme.reducedMotion
        SpringAnimation { spring: 4; damping: 1; epsilon: 0.005 }
    }

    implicitHeight: PainelTheme.keyHeight(size)
    implicitWidth: Math.max(implicitHeight, label.implicitWidth + 2 * PainelTheme.keyPadding(size))
    activeFocusOnTab: true
    opacity: enabled ? 1 : 0.4

    Accessible.role: Accessible.Button
    Accessible.name: root.title
    Accessible.description: qsTrId("painel.hold.a11y")
    Accessible.onPressAction: controller.requestConfirmation()
    Keys.onPressed: event => {
        const press = event.key === Qt.Key_Space || event.key === Qt.Key_Return || event.key === Qt.Key_Enter
        event.accepted = press && !event.isAutoRepeat && controller.requestConfirmation()
    }

    HoldToConfirmController {
        id: controller
        holdDuration: root.holdDuration
        enabled: root.enabled
        reducedMotion: PainelTheme.reducedMotion
        onAction: root.action()
    }

    Rectangle {
        id: face
        anchors.fill: parent
        radius: root.radius
        color: PainelTheme.raised
        border.width: 1
        border.color: root.enabled ? PainelTheme.accent : PainelTheme.border
        clip: true

        Text {
            id: label
            anchors.fill: parent
            text: root.customLabel.length > 0 ? root.customLabel : root.title
            color: PainelTheme.text
            font.family: PainelTheme.monoFamily
            font.weight: Font.Medium
            font.pixelSize: PainelTheme.keyFontSize(root.size)
            font.letterSpacing: 1
            font.capitalization: Font.AllUppercase
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
        }

        // The filled part, with the label again in the colour that reads on the accent.
        Rectangle {
            id: fill
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            anchors.left: parent.left
            width: parent.width * root.shownProgress
            color: PainelTheme.accent
            clip: true

            Text {
                x: label.x - fill.x
                width: label.width
                height: label.height
                text: label.text
                color: PainelTheme.onAccent
                font: label.font
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                elide: Text.ElideRight
            }
        }

        Rectangle {
            id: flashLight
            anchors.fill: parent
            color: PainelTheme.text
            opacity: 0
        }
    }

    NumberAnimation {
        id: flashFade
        target: flashLight
        property: "opacity"
        from: 0.6
        to: 0
        duration: PainelTheme.duration(350)
        easing.type: Easing.OutCubic
        onFinished: controller.endFlash()
    }

    MouseArea {
        anchors.fill: parent
        onPressed: controller.press()
        onReleased: controller.release()
        onCanceled: controller.release()
    }

    PainelFocusRing { target: root }

    T.Popup {
        id: dialog
        parent: T.Overlay.overlay
        anchors.centerIn: parent
        width: Math.min(420, (parent ? parent.width : 420) - 48)
        implicitHeight: contentHeight + topPadding + bottomPadding
        padding: 22
        modal: true
        focus: true
        // Keyboard focus comes back to the key the question was about.
        onClosed: {
            controller.cancelConfirmation()
            root.forceActiveFocus()
        }
        onOpened: cancelKey.forceActiveFocus()

        T.Overlay.modal: Rectangle {
            color: Qt.rgba(PainelTheme.bg.r, PainelTheme.bg.g, PainelTheme.bg.b, 0.7)
        }

        background: Rectangle {
            radius: 10
            color: PainelTheme.panel
            border.width: 1
            border.color: PainelTheme.border
        }

        contentItem: Column {
            spacing: 14
            Accessible.role: Accessible.Dialog
            Accessible.name: root.confirmTitle

            Text {
                width: parent.width
                text: root.confirmTitle
                color: PainelTheme.text
                font.family: PainelTheme.sansFamily
                font.pixelSize: 16
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
            }
            Text {
                width: parent.width
                text: root.confirmMessage
                color: PainelTheme.muted
                font.family: PainelTheme.sansFamily
                font.pixelSize: 13
                lineHeight: 1.2
                wrapMode: Text.Wrap
            }
            Row {
                anchors.right: parent.right
                spacing: 10
                topPadding: 6

                PainelButton {
                    id: cancelKey
                    text: qsTrId("painel.confirm.cancel")
                    onClicked: dialog.close()
                }
                PainelButton {
                    objectName: "holdDialogConfirm"
                    kind: PainelButtonKind.Accent
                    text: root.confirmAction.length > 0 ? root.confirmAction : root.title
                    onClicked: controller.confirm()
                }
            }
        }
    }
}
