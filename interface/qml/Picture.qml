import QtQuick
import Leafund

// The picture of a campaign, and a drawn sign until it comes.
PictureItem {
    id: picture

    property bool round: true

    objectName: view.name
    visible: view.visible
    ground: Theme.accentPale
    black: Theme.black

    Accessible.role: Accessible.Graphic
    Accessible.name: view.accessibleName

    Loader {
        anchors { fill: parent; margins: Theme.hairline }
        active: opacity > 0
        sourceComponent: Component {
            Medallion {
                icon: IconItem.Leaf
                radius: picture.round ? width / 2 : 0
            }
        }
        opacity: picture.hasPicture ? 0 : 1
        Behavior on opacity { Fade {} }
    }
}
