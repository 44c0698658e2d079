import QtQuick
import Leafund

// What is scrolled by finger, wheel and fling, and stops at its ends.
Flickable {
    id: area

    boundsBehavior: Flickable.StopAtBounds
    clip: true

    // A finger that catches it when it is slow, or at its end, is not held by it: lifted outside of it,
    // that finger would be gone untold, and the movement would go on for ever.
    property bool caught: false
    onFlickingChanged: caught = !flicking
    onDraggingChanged: if (!dragging) caught = false  // it may go on, back to its end
    containmentMask: dragging || moving && caught ? everywhere : null
    readonly property Item everywhere: Item {
        readonly property real far: 1e5  // points, more than a screen has
        x: -far
        y: -far
        width: 2 * far
        height: 2 * far
    }

    function withinEnds(y: real): real {
        return Math.max(0, Math.min(contentHeight - height, y));
    }

    // Sums are rounded: a fling that met its end to a hair would swing past it by some points and back,
    // whatever the bounds. It is stopped when Qt has done with the step; in the midst of it, it would
    // believe ever after that it moves.
    onContentYChanged: if (flicking && contentY !== withinEnds(contentY)) Qt.callLater(stopAtEnd)
    function stopAtEnd() {
        if (contentY === withinEnds(contentY))
            return;
        cancelFlick();
        contentY = withinEnds(contentY);
    }

    // A fling ends where the area is covered.
    readonly property bool covered: !enabled || !visible
    onCoveredChanged: if (covered) cancelFlick()

    // It would lead to where the end was.
    onHeightChanged: if (flicking) cancelFlick()

    // A turn of the wheel leads as far as it says, and at once, as the keys do: a notch one step. Qt
    // makes a speed of it, which is none for a slow and fine one, averages it with turns the other way,
    // and calls a list moving that creeps for a second or stands still, so that a click would only stop it.
    readonly property real notch: 120  // eighths of a degree
    // With a handler its item is offered presses of every button. The pane stops for one, and if nobody
    // took it, would wait for its release for ever.
    MouseArea {
        parent: area.contentItem
        anchors.fill: parent
        z: -1
        acceptedButtons: Qt.AllButtons & ~Qt.LeftButton
    }
    WheelHandler {
        parent: area.contentItem
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        target: null
        onWheel: turn => {
            // In phases two fingers on a touchpad tell of points.
            const way = turn.phase === Qt.NoScrollPhase ? turn.angleDelta.y / area.notch * Theme.step
                                                        : turn.pixelDelta.y;
            area.cancelFlick();
            area.contentY = area.withinEnds(area.contentY - way);
        }
    }
}
