import QtQuick
import Leafund

// A screen: the navigation bar where it has one, and below it the content where the toolkit placed
// the root view.
FocusScope {
    id: page

    required property SceneObject scene
    readonly property var views: scene.views
    default property alias content: content.data
    property alias barContent: bar.trailing
    readonly property int slideDuration: Theme.slideDuration

    // The keys that scroll work wherever on the screen the focus is.
    Keys.forwardTo: content.children

    width: scene.root.width
    height: scene.root.y + scene.root.height

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    // A drag from the left edge leads back where it goes far enough; less of one is a tap or a
    // scroll for what lies above.
    Item {
        width: Theme.space
        height: parent.height

        DragHandler {
            target: null
            yAxis.enabled: false
            enabled: page.scene.canGoBack
            grabPermissions: PointerHandler.CanTakeOverFromAnything
            onGrabChanged: (change, point) => {
                const way = point.scenePosition.x - point.scenePressPosition.x;
                if (change === PointerDevice.UngrabExclusive && way > Theme.swipe)
                    page.scene.goBack();
            }
        }
    }

    // What no control takes for itself goes to the screen.
    MouseArea {
        readonly property bool isGround: true
        anchors.fill: parent
        onClicked: page.scene.root.tap()
    }

    NavigationBar {
        id: bar
        scene: page.scene
        width: parent.width
        height: page.scene.root.y
        visible: page.scene.barShown
    }

    Item {
        id: content
        x: page.scene.root.x
        y: page.scene.root.y
        width: page.scene.root.width
        height: page.scene.root.height
    }
}
