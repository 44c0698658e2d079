import QtQuick
import Leafund

// A message right below the input it is about; it is read out when it comes.
Words {
    id: words

    color: Theme.alert
    font { pointSize: Theme.body; weight: Font.DemiBold }
    leftPadding: Desktop.mirrored ? 0 : Theme.icon + Theme.unit
    rightPadding: Desktop.mirrored ? Theme.icon + Theme.unit : 0
    Accessible.ignored: true

    Announcement {
        anchors.fill: parent
        view: words.view
        message: words.view.visible ? words.view.text : ""
        place: words
    }

    IconItem {
        anchors.left: parent.left
        y: (parent.height / Math.max(1, words.lineCount) - height) / 2
        width: Theme.icon
        height: width
        icon: IconItem.Alert
        color: Theme.alert
    }
}
