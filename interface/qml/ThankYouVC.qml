import QtQuick
import Leafund

Page {
    id: page

    Meadow {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }

    ScrollPane {
        scene: page.scene
        centred: true
        spacing: Theme.space

        Celebration {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(parent.width, height * 1.5)
            height: Math.min(Theme.celebration, page.height / 3)
        }
        Title {
            id: thanks
            view: page.views.thankYouLabel
            takesFocus: true
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            FocusRing { target: thanks }
        }
        Button {
            view: page.views.homeButton
            width: parent.width
        }
    }
}
