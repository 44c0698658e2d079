import QtQuick
import Leafund

// What is scrolled by finger, wheel and fling, and stops at its ends.
Flickable {
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
}
