import QtQuick
import Leafund

// Whatever is pressed: by finger, pointer, Enter, Space or assistive technology. Pressing it takes
// the focus, so that an input the user was in is left.
Item {
    id: pressable

    signal pressed
    // A quick tap is seen, too.
    readonly property bool held: area.pressed && !area.drawn || glimpse.running
    readonly property alias hovered: hover.hovered
    // Over what is held, and what a pointer is on; a finger hovers over nothing.
    readonly property color shade: held ? Theme.veil : hovered ? Theme.hover : Theme.none
    // In a list a finger that is drawn along wants to scroll, even where the list has ended.
    property bool steady: false
    property alias ringOutset: ring.outset
    property alias ringOutsetTop: ring.outsetTop
    property alias ringOutsetBottom: ring.outsetBottom

    activeFocusOnTab: true

    Timer {
        id: glimpse
        interval: Theme.pressDuration
    }
    HoverHandler {
        id: hover
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    }

    function press() {
        forceActiveFocus(Qt.MouseFocusReason);
        pressed();
    }

    // A key that is held down presses once.
    Keys.onPressed: event => {
        event.accepted = [Qt.Key_Return, Qt.Key_Enter, Qt.Key_Space].includes(event.key);
        if (event.accepted && !event.isAutoRepeat) {
            glimpse.restart();
            pressed();
        }
    }

    Accessible.role: Accessible.Button
    Accessible.focusable: true
    // Under this name Qt Quick calls it for a button, which has the action by its role. A control of
    // another role says so itself; a button that did would offer the action twice.
    function accessiblePressAction() {
        if (!visible || !enabled)
            return;
        forceActiveFocus(Qt.OtherFocusReason);
        pressed();
    }

    MouseArea {
        id: area
        anchors.fill: parent
        cursorShape: Qt.PointingHandCursor
        property real start
        property bool drawn: false
        onPressed: mouse => {
            start = mouse.y;
            drawn = false;
            glimpse.restart();
        }
        onCanceled: glimpse.stop()
        onPositionChanged: mouse => {
            if (pressable.steady && Math.abs(mouse.y - start) >= Qt.styleHints.startDragDistance)
                drawn = true, glimpse.stop();
        }
        onClicked: if (!drawn) pressable.press()
    }

    FocusRing {
        id: ring
        target: pressable
        z: 1
    }
}
