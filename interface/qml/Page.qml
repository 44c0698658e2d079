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
    // How far from the page's edges its column begins and ends, and with it what the bar holds.
    property real columnStart: Theme.gap
    property real columnEnd: columnStart
    // How far a drag leads back, in points.
    readonly property real swipe: 80
    readonly property bool slides: x !== 0
    readonly property int slideDuration: Desktop.lessMotion ? 0 : Theme.slideDuration

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

    // A drag from the edge where the way back stands leads back where it goes far enough; less of one
    // is a tap or a scroll for what lies above.
    Item {
        anchors.left: parent.left
        width: Theme.space
        height: parent.height

        DragHandler {
            target: null
            yAxis.enabled: false
            enabled: page.bar.canGoBack
            grabPermissions: PointerHandler.CanTakeOverFromAnything
            onGrabChanged: (change, point) => {
                const way = point.scenePosition.x - point.scenePressPosition.x;
                if (change === PointerDevice.UngrabExclusive && (Desktop.mirrored ? -way : way) > page.swipe)
                    page.bar.goBack();
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
