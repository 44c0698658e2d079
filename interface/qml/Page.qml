import QtQuick
import Leafund

// A screen: the navigation bar where it has one, and below it the content where the toolkit placed
// the root view.
FocusScope {
    id: page

    required property ViewBridge root
    required property BarBridge bar
    default property alias content: content.data
    property alias barContent: navigationBar.trailing
    readonly property alias navigationBar: navigationBar
    // How far from the page's edges its column begins and ends, and with it what the bar holds.
    property real columnStart: Theme.gap
    property real columnEnd: columnStart
    // A finger has been drawn so far from the edge where the way back stands, in points, and is lifted
    // or taken away.
    signal drawnBack(real way)
    signal letGo(bool lifted)
    readonly property bool slides: x !== 0
    readonly property int slideDuration: Desktop.lessMotion ? 0 : Theme.slideDuration

    // What F6 leads through, with Ctrl+Tab for another name of it.
    property var panes: [navigationBar, content]
    function enterPane(forward: bool) {
        const focused = Window.activeFocusItem;
        const holds = (pane, item) => {
            while (item && item !== pane)
                item = item.parent;
            return item === pane;
        };
        const step = forward ? 1 : panes.length - 1;
        let at = panes.findIndex(pane => holds(pane, focused));
        for (let i = 0; i < panes.length; ++i) {
            at = (at + step) % panes.length;
            const first = panes[at].entry ?? panes[at].nextItemInFocusChain(true);
            if (holds(panes[at], first))
                return first.forceActiveFocus(Qt.TabFocusReason);
        }
    }
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_F6;
        if (event.accepted)
            enterPane(!(event.modifiers & Qt.ShiftModifier));
    }

    // The menu of a text, over all of the page.
    function offerEdits(offer: EditOffer, place: point) {
        editMenu.active = true;
        (editMenu.item as EditMenu).open(offer, place);
    }
    Loader {
        id: editMenu
        anchors.fill: parent
        z: 1
        active: false
        sourceComponent: EditMenu {}
    }

    // The keys that scroll work wherever on the screen the focus is.
    Keys.forwardTo: content.children

    LayoutMirroring.enabled: Desktop.mirrored
    LayoutMirroring.childrenInherit: true

    width: root.width
    height: root.y + root.height

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    // A drag from the edge where the way back stands leads back; less of one is a tap or a
    // scroll for what lies above.
    Item {
        anchors.left: parent.left
        width: Theme.space
        height: parent.height

        DragHandler {
            target: null
            yAxis.enabled: false
            enabled: page.bar.canGoBack
            grabPermissions: PointerHandler.CanTakeOverFromAnything
            onCentroidChanged: {
                const way = centroid.scenePosition.x - centroid.scenePressPosition.x;
                if (active)
                    page.drawnBack(Desktop.mirrored ? -way : way);
            }
            onGrabChanged: change => {
                if (change === PointerDevice.UngrabExclusive)
                    page.letGo(true);
                else if (change === PointerDevice.CancelGrabExclusive)
                    page.letGo(false);
            }
        }
    }

    // What no control takes for itself goes to the screen.
    MouseArea {
        readonly property bool isGround: true
        anchors.fill: parent
        onClicked: page.root.tap()
    }

    NavigationBar {
        id: navigationBar
        view: page.bar
        columnStart: page.columnStart
        columnEnd: page.columnEnd
        width: parent.width
        height: page.root.y
        visible: page.bar.visible
    }

    Item {
        id: content
        x: page.root.x
        y: page.root.y
        width: page.root.width
        height: page.root.height
    }
}
