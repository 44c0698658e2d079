import QtQuick
import Leafund

// A table of campaigns. The toolkit says how long it is, in which column, and which rows are shown
// where; it is scrolled beside the column as well.
FocusScope {
    id: list

    required property TableBridge root

    // How much of the next row is seen beside the row in focus.
    readonly property real peek: 48
    property int emptyIcon: IconItem.Leaf

    y: root.y
    width: parent ? parent.width : 0
    height: root.height

    function scrollBy(distance) {
        flickable.contentY = flickable.withinEnds(flickable.contentY + distance);
    }

    // The row in focus is brought into sight, and some of the next: only rows in sight can be reached.
    readonly property Item focused: Window.activeFocusItem
    onFocusedChanged: if (focused === list) Qt.callLater(giveFocusToRow)
    function bringIntoSight(row: Item) {
        const top = row.y - flickable.contentY;
        const above = top - peek;
        const below = top + row.height + peek - flickable.height;
        scrollBy(above < 0 ? above : Math.max(0, below));
    }

    // When the screen comes, and when the row in focus has gone or was scrolled away, a row in sight
    // takes the focus, and nothing scrolls for it.
    function giveFocusToRow() {
        if (focused === list)
            settleFocus();
    }
    function settleFocus() {
        if (!list.activeFocus)
            return;
        rows.focusSeen(flickable.contentY, flickable.contentY + flickable.height);
        if (list.root.contentHeight === 0)
            flickable.forceActiveFocus(Qt.ActiveWindowFocusReason);
    }

    function leap(distance) {
        scrollBy(distance);
        settleFocus();
    }
    readonly property real pageHeight: height - Theme.step

    Keys.onUpPressed: scrollBy(-Theme.step)
    Keys.onDownPressed: scrollBy(Theme.step)
    Keys.onPressed: event => {
        const all = root.contentHeight;
        const ways = new Map([[Qt.Key_PageUp, -pageHeight], [Qt.Key_PageDown, pageHeight],
                              [Qt.Key_Home, -all], [Qt.Key_End, all]]);
        event.accepted = ways.has(event.key);
        if (event.accepted)
            leap(ways.get(event.key));
    }

    // Where the rows end early the ground is not left bare.
    Loader {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        active: list.root.contentHeight + Theme.meadow < list.height
        sourceComponent: Component { Meadow { room: list.height } }
    }
    Loader {
        anchors.centerIn: parent
        width: list.root.width
        active: list.root.contentHeight === 0
        sourceComponent: Component {
            EmptyList {
                table: list.root
                icon: list.emptyIcon
                room: list.height
            }
        }
    }

    ScrollArea {
        id: flickable
        objectName: "table"
        anchors.fill: parent
        contentHeight: list.root.contentHeight
        // Where there is no row that could have the focus.
        activeFocusOnTab: contentHeight === 0

        // The item owns the offset. What logic or layout placed anew is taken over once.
        // Past an end it stops itself.
        onContentYChanged: list.root.scroll(flicking ? withinEnds(contentY) : contentY)
        readonly property int placement: list.root.placement
        onPlacementChanged: contentY = list.root.contentOffset

        Accessible.role: Accessible.List
        Accessible.name: list.root.accessibleName
        Accessible.onNextPageAction: list.leap(list.pageHeight)
        Accessible.onPreviousPageAction: list.leap(-list.pageHeight)

        TableRows {
            id: rows
            x: Math.floor((flickable.width - width) / 2)
            width: list.root.width
            height: flickable.contentHeight
            table: list.root
            onRowFocused: row => list.bringIntoSight(row)
            delegate: Component { CampaignRow {} }
        }
    }

    ScrollMark { target: flickable }
    FocusRing {
        target: flickable
        outset: -Theme.half
    }
}
