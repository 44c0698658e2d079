import QtQuick
import Leafund

Page {
    id: page

    required property LabelBridge thankYouLabel
    required property ButtonBridge homeButton
    readonly property real celebration: 200

    Meadow {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }

    ScrollPane {
        root: page.root
        centred: true
        spacing: Theme.space

        Celebration {
            slides: page.slides
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(parent.width, height * 1.5)
            height: Math.min(page.celebration, page.height / 3)
        }
        Title {
            id: thanks
            view: page.thankYouLabel
            takesFocus: true
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            FocusRing { target: thanks }
        }
        Button {
            view: page.homeButton
            width: parent.width
        }
    }
}
