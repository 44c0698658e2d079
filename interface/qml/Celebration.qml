import QtQuick
import Leafund

// A leaf in a shower of dots. It opens once, when the slide that first brought it has ended.
Item {
    id: party

    // The page that it is on is moving.
    required property bool slides
    readonly property real unit: Math.min(width, height) / 10
    readonly property var dots: [
        { x: -6, y: -2.6, size: 0.9, color: Theme.sun },
        { x: -4.2, y: -4.2, size: 0.6, color: Theme.clay },
        { x: 4.6, y: -4, size: 0.8, color: Theme.sun },
        { x: 6, y: -1.6, size: 0.6, color: Theme.sky },
        { x: -5.4, y: 2.6, size: 0.7, color: Theme.sky },
        { x: 5, y: 3, size: 0.9, color: Theme.clay },
        { x: 4.8, y: 0.6, size: 0.4, color: Theme.accent },
        { x: -4.8, y: -0.4, size: 0.4, color: Theme.accent },
        { x: -3.4, y: 4.4, size: 0.5, color: Theme.sun },
        { x: 3.4, y: 4.4, size: 0.5, color: Theme.accent }
    ]

    property bool seen: false

    readonly property real folded: 0.6
    scale: seen || Desktop.lessMotion ? 1 : folded

    NumberAnimation {
        target: party
        property: "scale"
        to: 1
        duration: Theme.celebrationDuration
        easing.type: Easing.OutBack
        running: party.visible && !party.slides && !Desktop.lessMotion
        onFinished: party.seen = true
    }

    Rectangle {
        anchors.centerIn: parent
        width: 7 * party.unit
        height: width
        radius: width / 2
        color: Theme.card
        border { width: Theme.caret; color: Theme.accent }
    }
    IconItem {
        anchors.centerIn: parent
        width: 4.4 * party.unit
        height: width
        icon: IconItem.Leaf
        color: Theme.accent
    }
    Repeater {
        model: party.dots
        Rectangle {
            required property var modelData
            width: 2 * Math.round(modelData.size * party.unit / 2)
            height: width
            radius: width / 2
            x: Math.round(party.width / 2 + modelData.x * party.unit - width / 2)
            y: Math.round(party.height / 2 + modelData.y * party.unit - height / 2)
            color: modelData.color
        }
    }
}
