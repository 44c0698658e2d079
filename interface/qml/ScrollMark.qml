import QtQuick
import Leafund

// Shows which part of something longer is seen.
Rectangle {
    required property Flickable target

    anchors { right: parent.right; rightMargin: Theme.half }
    y: target.visibleArea.yPosition * target.height
    width: Theme.half
    height: target.visibleArea.heightRatio * target.height
    visible: target.visibleArea.heightRatio < 1
    radius: width / 2
    color: Theme.outline
}
