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

        Medallion {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: page.height > 8 * Theme.mark
            icon: IconItem.Sprout
        }
        Words {
            view: page.views.welcome
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            font { pointSize: Theme.lead; weight: Font.DemiBold }
        }
        Item { width: parent.width; height: Theme.half }
        TextEntry {
            view: page.views.nameField
            width: parent.width
        }
        TextEntry {
            view: page.views.passwordField
            width: parent.width
        }
        TextEntry {
            view: page.views.passwordConfirmField
            width: parent.width
        }
        Button {
            view: page.views.signUpButton
            width: parent.width
        }
    }
}
