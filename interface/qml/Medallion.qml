import QtQuick
import Leafund

// A sign in a round field: the drawn mark of a screen.
Rectangle {
    id: medallion

    required property int icon

    implicitWidth: Theme.mark
    implicitHeight: Theme.mark
    radius: width / 2
    color: Theme.accentPale

    IconItem {
        anchors.centerIn: parent
        width: Math.min(parent.width, parent.height) / 2
        height: width
        icon: medallion.icon
        color: Theme.accent
    }
}
