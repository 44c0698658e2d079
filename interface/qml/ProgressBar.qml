import QtQuick
import Leafund

// How far something has come. It fills from where the last change began.
Item {
    id: progress

    required property ProgressBridge view
    property real shown: view.progressFrom

    objectName: view.name
    visible: view.visible
    implicitHeight: Theme.gap - Theme.half

    readonly property real goal: view.progress
    onGoalChanged: refill()
    Component.onCompleted: refill()

    function refill() {
        fill.from = view.progressFrom;
        fill.to = view.progress;
        fill.restart();
    }

    NumberAnimation {
        id: fill
        target: progress
        property: "shown"
        duration: Desktop.lessMotion ? 0 : Theme.fillDuration
        easing.type: Easing.OutCubic
    }

    Accessible.role: Accessible.ProgressBar
    Accessible.name: view.accessibleName

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: Theme.track
        border { width: Theme.hairline; color: Theme.outline }
    }

    Rectangle {
        anchors.left: parent.left
        width: Math.max(height, parent.width * progress.shown)
        height: parent.height
        radius: height / 2
        visible: progress.shown > 0
        color: Theme.progress
    }
}
