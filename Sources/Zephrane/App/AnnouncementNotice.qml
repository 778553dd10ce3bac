pragma ComponentBehavior: Bound
import QtQuick
import Zephrane

// Where announcements reach a screen reader. Qt 6.4 has no announcement event, and its AT-SPI
// bridge drops a value change on anything without a value. Orca speaks a notification the moment
// it starts showing ("Notification, <name>"), so each text becomes this notification's name and
// the notification shows anew. It has no size and draws nothing.
Item {
    id: root
    objectName: "announcementNotice"

    visible: false
    Accessible.role: Accessible.Notification
    Accessible.name: ""

    Connections {
        target: Announcer
        function onSpoken(text: string) {
            root.visible = false
            root.Accessible.name = text
            root.visible = true
        }
    }
}
