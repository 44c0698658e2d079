import QtQuick
import Leafund

// The picture of a campaign.
PictureItem {
    objectName: view.name
    visible: view.visible
    ground: Theme.accentPale
    black: Theme.black

    Accessible.role: Accessible.Graphic
    Accessible.name: view.accessibleName
}
