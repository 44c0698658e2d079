import QtQuick
import Leafund

// A long text to read, as high as it is long, framed as its layer says.
Rectangle {
    id: area

    required property ViewObject view

    visible: view.visible
    implicitHeight: words.implicitHeight + 2 * Theme.gap
    color: Theme.card
    border { width: view.borderWidth; color: view.borderColor }
    radius: view.cornerRadius

    Words {
        id: words
        view: area.view
        anchors { fill: parent; margins: Theme.gap }
        lineHeight: 1.35
    }
}
