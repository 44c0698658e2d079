import QtQuick
import Leafund

// The app's mark as a small drawn scene, round, on the ground of a page: a leaf on a hill, and the sun.
Item {
    id: scene

    readonly property real unit: width / 24
    readonly property int corners: 4

    implicitWidth: Theme.meadow
    implicitHeight: implicitWidth

    Rectangle {
        anchors.fill: parent
        color: Theme.accentPale
    }
    Rectangle {
        x: Math.round(15 * scene.unit)
        y: Math.round(5 * scene.unit)
        width: 2 * Math.round(2.5 * scene.unit)
        height: width
        radius: width / 2
        color: Theme.sun
    }
    IconItem {
        y: 6 * scene.unit
        width: parent.width
        height: 18 * scene.unit
        icon: IconItem.HillFar
        color: Theme.stem
    }
    IconItem {
        x: 5 * scene.unit
        y: 5 * scene.unit
        width: 12 * scene.unit
        height: width
        icon: IconItem.Leaf
        color: Theme.accentDeep
    }
    IconItem {
        y: 10 * scene.unit
        width: parent.width
        height: 14 * scene.unit
        icon: IconItem.HillNear
        color: Theme.accent
    }
    // The corners, covered with the ground.
    Repeater {
        model: scene.corners
        IconItem {
            required property int index
            anchors.fill: parent
            anchors { rightMargin: parent.width / 2; bottomMargin: parent.height / 2 }
            transformOrigin: Item.BottomRight
            rotation: 90 * index
            icon: IconItem.Corner
            color: Theme.ground
        }
    }
}
