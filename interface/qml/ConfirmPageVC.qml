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

        Card {
            width: parent.width

            Medallion {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: page.height > 8 * Theme.mark
                icon: IconItem.Heart
            }
            Title {
                view: page.views.question
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
            }
            Words {
                view: page.views.outcome
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                color: Theme.quiet
            }
            Item { width: parent.width; height: Theme.half }
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
}
