import QtQuick
import Leafund

Page {
    id: page

    ScrollPane {
        scene: page.scene
        centred: true

        IconItem {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Theme.mark
            height: Theme.mark
            icon: IconItem.Heart
            color: Theme.accent
        }
        Words {
            view: page.views.question
            heading: true
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            font { pointSize: Theme.display; weight: Font.Bold }
        }
        Item { width: parent.width; height: Theme.unit }
        Button {
            view: page.views.yesButton
            width: parent.width
        }
        Button {
            view: page.views.noButton
            primary: false
            width: parent.width
        }
    }
}
