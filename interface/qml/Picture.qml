import QtQuick
import Leafund

// The picture of a campaign, described by the campaign's title.
PictureItem {
    required property string description

    objectName: view.name
    visible: view.visible
    ground: Theme.accentPale

    Accessible.role: Accessible.Graphic
    Accessible.name: description
}
