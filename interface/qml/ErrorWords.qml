import QtQuick
import Leafund

// A message right below the input it is about; it is read out when it comes.
Words {
    color: Theme.alert
    font { pointSize: Theme.body; weight: Font.DemiBold }
    Accessible.role: Accessible.Notification
    leftPadding: Theme.icon + Theme.unit

    IconItem {
        y: (parent.height / Math.max(1, parent.lineCount) - height) / 2
        width: Theme.icon
        height: width
        icon: IconItem.Alert
        color: Theme.alert
    }
}
