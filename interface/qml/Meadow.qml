import QtQuick
import Leafund

// Hills with young plants, at the foot of a screen that has little else to show and is high enough.
Item {
    id: meadow

    property real room: parent ? parent.height : 0

    visible: room > 4 * height
    implicitHeight: Theme.meadow

    IconItem {
        anchors.fill: parent
        icon: IconItem.HillFar
        color: Theme.hillFar
    }
    Repeater {
        model: [{ x: 0.68, y: 0.59, size: Theme.icon }, { x: 0.8, y: 0.49, size: Theme.wide },
                { x: 0.12, y: 0.34, size: Theme.wide }]
        IconItem {
            required property var modelData
            width: modelData.size
            height: width
            x: Math.round(meadow.width * modelData.x)
            y: Math.round(meadow.height * modelData.y)
            icon: IconItem.Sprout
            color: Theme.stem
        }
    }
    IconItem {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: Math.round(parent.height * 0.6)
        icon: IconItem.HillNear
        color: Theme.hillNear
    }
}
