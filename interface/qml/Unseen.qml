import QtQuick
import Leafund

// The place of a view that nobody sees.
Item {
    required property ViewBridge view

    objectName: view.name
    visible: false
}
