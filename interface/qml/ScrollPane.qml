import QtQuick
import Leafund

// A column of controls that scrolls where the screen is too short for it, and keeps the control in
// focus in sight. The column stands in the middle of a wide screen, and of a high one on demand.
Item {
    id: pane

    required property ViewBridge root
    default property alias content: column.data
    property bool centred: false
    property alias spacing: column.spacing
    // How wide the column is at most, and how far from the pane's edges it begins.
    property real most: WindowClass.form
    readonly property alias columnStart: column.x

    anchors.fill: parent

    // What a message has just come for, the topmost of several, is in sight until the user goes on.
    property Item told: null
    property real placed: 0  // where the content was last moved for it
    // By less it is moved by itself: a place between pixels is rounded.
    function isPlaced(): bool {
        return Math.abs(flickable.contentY - placed) < 1;
    }
    function bringIntoSight(item: Item) {
        if (!told || item.mapToItem(column, 0, 0).y < told.mapToItem(column, 0, 0).y)
            told = item;
        Qt.callLater(reveal);
    }
    function goOn() {
        told = null;
        visited = true;
        reveal();
    }
    // When the room changes, what the user went to stays in sight; where the host put the focus,
    // nothing scrolls.
    function keepInSight() {
        if (told || visited || focused?.cursorRectangle)
            reveal();
    }

    function reveal() {
        const item = told ?? focused;
        if (item?.takesFocus)
            return;  // a heading, where nobody went
        for (let each = item; each !== column; each = each.parent)
            if (!each)
                return;
        const whole = item.mapToItem(column, 0, 0, item.width, item.height);
        const caret = item.cursorRectangle;
        const shown = caret ? item.mapToItem(column, caret) : whole;
        const top = column.y + shown.y - Theme.wide;
        const bottom = column.y + shown.y + shown.height + Theme.space;
        const lowest = Math.max(0, flickable.contentHeight - flickable.height);
        if (!isPlaced())
            placed = flickable.contentY;
        if (bottom > placed + flickable.height)
            placed = Math.min(lowest, bottom - flickable.height);
        if (top < placed)
            placed = Math.max(0, top);
        flickable.contentY = placed;
    }

    // Back to the top of what the user has scrolled past; a page that is just opened stays.
    function goBackTo(item: Item) {
        const top = column.y + item.mapToItem(column, 0, 0).y;
        if (top < flickable.contentY)
            flickable.contentY = Math.max(0, top - Theme.wide);
    }

    function scrollBy(distance) {
        flickable.contentY = flickable.withinEnds(flickable.contentY + distance);
    }

    // Where the user goes is brought into sight. Where the host puts the focus, when the screen comes
    // or comes back and when the editing ends, nothing scrolls.
    readonly property Item focused: Window.activeFocusItem
    property bool inUse: false
    property bool visited: false  // the focus is where the user went since the screen came
    property Item before: null  // what had it last, but for a menu, which gives it back
    onFocusedChanged: {
        if (focused?.passing || (focused && focused === before))
            return;
        before = focused;
        caretOf = focused;
        const wasInUse = inUse;
        inUse = screenOf(focused) === screenOf(pane);
        if (!inUse)
            told = null, visited = false;
        else if (wasInUse && focused.activeFocusOnTab)
            goOn();
    }
    function screenOf(item) {
        while (item?.parent && item.parent !== Window.contentItem)
            item = item.parent;
        return item;
    }
    // An input tells of its caret also when it only gets the focus back.
    readonly property rect caret: before?.cursorRectangle ?? Qt.rect(0, 0, 0, 0)
    property Item caretOf: null
    onCaretChanged: if (inUse && caretOf === before) Qt.callLater(goOn)
    onHeightChanged: Qt.callLater(keepInSight)

    Keys.onUpPressed: scrollBy(-Theme.step)
    Keys.onDownPressed: scrollBy(Theme.step)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_PageUp || event.key === Qt.Key_PageDown;
        if (event.accepted)
            scrollBy((event.key === Qt.Key_PageUp ? -1 : 1) * (height - Theme.step));
    }

    ScrollArea {
        id: flickable
        anchors.fill: parent
        contentHeight: Math.max(height, column.height + 2 * Theme.space)
        interactive: contentHeight > height
        onContentHeightChanged: Qt.callLater(pane.keepInSight)
        onContentYChanged: if (!pane.isPlaced()) pane.told = null

        // A tap beside the controls, which the pane would keep to itself where it scrolls.
        MouseArea {
            readonly property bool isGround: true
            width: flickable.width
            height: flickable.contentHeight
            onClicked: pane.root.tap()
        }

        Column {
            id: column
            width: Math.min(pane.most, pane.width - 2 * Theme.gap)
            x: (pane.width - width) / 2
            y: pane.centred ? Math.max(Theme.space, (pane.height - height) / 2) : Theme.space
            spacing: Theme.gap
        }
    }

    ScrollMark { target: flickable }
}
