import QtQuick
import Leafund

// Where screens wait that were made ahead of need. Nobody sees them, and assistive technology meets
// one hidden pane without any part.
Item {
    readonly property bool closed: true

    objectName: "wings"
    visible: false
    Accessible.role: Accessible.Pane
}
