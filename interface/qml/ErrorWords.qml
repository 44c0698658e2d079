import QtQuick
import Leafund

// A message right below the input it is about; it is read out when it comes. What stands below makes
// room for it over some frames, and takes that back at once.
Item {
    id: room

    required property LabelBridge view

    readonly property bool told: view.visible
    onToldChanged: if (told && !Desktop.lessMotion) opening.restart()
    property real opened: 1
    Fade {
        id: opening
        target: room
        property: "opened"
        from: 0
        to: 1
    }
    visible: told
    height: opened * words.height
    clip: opened < 1

    Words {
        id: words
        view: room.view
        width: parent.width
        color: Theme.alert
        font { pointSize: Theme.body; weight: Font.DemiBold }
        leftPadding: Desktop.mirrored ? 0 : Theme.icon + Theme.unit
        rightPadding: Desktop.mirrored ? Theme.icon + Theme.unit : 0
        // Once read out it is words like others: when its page comes back nothing else tells of it.
        Accessible.ignored: text === "" || news.visible

        IconItem {
            anchors.left: parent.left
            y: (parent.height / Math.max(1, words.lineCount) - height) / 2
            width: Theme.icon
            height: width
            icon: IconItem.Alert
            color: Theme.alert
        }
    }

    Announcement {
        id: news
        anchors.fill: parent
        view: room.view
        message: room.view.visible ? room.view.text : ""
        place: room
    }
}
