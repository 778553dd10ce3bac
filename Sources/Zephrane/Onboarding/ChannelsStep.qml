pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// What each channel does, the cards coming on one after another.
FocusScope {
    id: root
    required property OnboardingFlow flow
    readonly property var texts: [
        qsTrId("onboarding.channels.home"), qsTrId("onboarding.channels.junk"), qsTrId("onboarding.channels.lens"),
        qsTrId("onboarding.channels.large"), qsTrId("onboarding.channels.apps"),
        qsTrId("onboarding.channels.leftovers"), qsTrId("onboarding.channels.trash"),
        qsTrId("onboarding.channels.updates")
    ]
    readonly property var names: [
        qsTrId("channel.home.short"), qsTrId("channel.junk.short"), qsTrId("channel.lens.short"),
        qsTrId("channel.large.short"), qsTrId("channel.apps.short"), qsTrId("channel.leftovers.short"),
        qsTrId("channel.trash.short"), qsTrId("channel.updates.short")
    ]
    property int litCount: PainelTheme.reducedMotion ? texts.length : 0

    Timer {
        interval: 250
        repeat: true
        running: root.litCount < root.texts.length
        onTriggered: root.litCount += 1
    }

    Column {
        anchors.fill: parent
        spacing: 16
        OnboardingHeadline {
            lines: [qsTrId("onboarding.channels.headline1"), qsTrId("onboarding.channels.headline2")]
        }
        OnboardingBody { text: qsTrId("onboarding.channels.intro") }
        Grid {
            width: parent.width
            columns: 2
            spacing: 10
            Repeater {
                model: root.texts.length
                Rectangle {
                    id: card
                    required property int index
                    readonly property bool lit: index < root.litCount
                    objectName: "introCard" + index
                    width: (parent.width - 10) / 2
                    height: 54
                    radius: 6
                    color: PainelTheme.panel
                    border.color: lit ? PainelTheme.accent : PainelTheme.border
                    opacity: lit ? 1 : 0.25
                    Behavior on opacity {
                        enabled: !PainelTheme.reducedMotion
                        NumberAnimation { duration: 180; easing.type: Easing.OutCubic }
                    }
                    Column {
                        anchors.fill: parent
                        anchors.margins: 10
                        spacing: 4
                        MonoLabel { text: root.names[card.index]; tone: MonoLabel.Accent }
                        Text {
                            width: parent.width
                            text: root.texts[card.index]
                            color: PainelTheme.text
                            font.family: PainelTheme.sansFamily
                            font.pixelSize: 12
                            elide: Text.ElideRight
                        }
                    }
                }
            }
        }
    }
}
