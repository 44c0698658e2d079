import QtQuick
import Leafund

Page {
    id: page

    Meadow {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }

    ScrollPane {
        scene: page.scene
        name: page.views.thankYouLabel.text
        centred: true
        spacing: Theme.space

        Celebration {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(parent.width, height * 1.5)
            height: Math.min(Theme.celebration, page.height / 3)
        }
        Title {
            view: page.views.thankYouLabel
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
        }
        Button {
            view: page.views.homeButton
            width: parent.width
        }
    }
}
