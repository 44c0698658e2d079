import QtQuick
import Leafund

// Shows where the keyboard is.
Rectangle {
    property alias target: watch.target
    property real outset: Theme.half
    property real outsetTop: outset
    property real outsetBottom: outset

    anchors.fill: parent
    anchors { margins: -outset; topMargin: -outsetTop; bottomMargin: -outsetBottom }
    visible: watch.ring
    color: Theme.none
    border { width: Theme.ringWidth; color: Theme.accentDeep }
    radius: Theme.radius + Theme.half

    FocusWatch { id: watch }
}
