import QtQuick
import Leafund

// Shows which part of something longer is seen, while it is scrolled.
Rectangle {
    required property Flickable target

    readonly property real place: target.visibleArea.yPosition
    onPlaceChanged: linger.restart()
    // The keys scroll at once.
    Timer {
        id: linger
        interval: Theme.lingerDuration
    }

    anchors { right: parent.right; rightMargin: Theme.half }
    y: place * target.height
    width: Theme.half
    height: target.visibleArea.heightRatio * target.height
    visible: opacity > 0
    opacity: target.visibleArea.heightRatio < 1 && (target.moving || linger.running) ? 1 : 0
    Behavior on opacity { Fade {} }
    radius: width / 2
    color: Theme.outline
}
