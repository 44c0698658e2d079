import QtQuick
import Leafund

// What is scrolled by finger, wheel and fling, and stops at its ends.
Flickable {
    id: flickable

    boundsBehavior: Flickable.StopAtBounds
    clip: true

    // Caught in a fling at its end, it is drawn but has no hold of the finger, and would not be told
    // that it is lifted somewhere else: the drag would go on for ever.
    containmentMask: dragging ? everywhere : null
    readonly property Item everywhere: Item {
        readonly property real far: 1e5  // points, more than a screen has
        x: -far
        y: -far
        width: 2 * far
        height: 2 * far
    }

    // Where its end is near the wheel's scroll creeps there for a second; a click then would stop it,
    // unseen, and press nothing.
    readonly property real slow: 10  // points a second
    readonly property int few: 5
    property int slowSteps: 0  // in a row
    onMovingChanged: slowSteps = 0
    onContentYChanged: {
        slowSteps = Math.abs(verticalVelocity) < slow ? slowSteps + 1 : 0;
        const within = contentY > 0 && contentY < contentHeight - height;
        if (slowSteps > few && moving && !dragging && within)
            cancelFlick();
    }

    // A turn of the wheel that is too fine, or takes back just what a fling has left, starts a movement
    // to where the list already is, and Qt never hears of its end: the next click would stop it.
    property int stillSteps: 0  // in a row
    property real lastY: NaN
    property real step
    NumberAnimation on step {
        from: 0
        to: 1
        duration: Theme.slideDuration  // or any: it is here to step as long as it runs
        loops: Animation.Infinite
        running: flickable.moving && !flickable.dragging
        onRunningChanged: flickable.stillSteps = 0
    }
    onStepChanged: {
        stillSteps = contentY === lastY ? stillSteps + 1 : 0;
        lastY = contentY;
        if (stillSteps > few && moving)
            cancelFlick();
    }
}
