import QtQuick
import Leafund

Page {
    id: page

    ScrollPane {
        scene: page.scene
        centred: true
        spacing: Theme.space

        Celebration {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(parent.width, Theme.celebration * 1.5)
            height: Theme.celebration
        }
        Words {
            view: page.views.thankYouLabel
            heading: true
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            font { pointSize: Theme.display; weight: Font.Bold }
        }
        Button {
            view: page.views.homeButton
            width: parent.width
        }
    }
}
