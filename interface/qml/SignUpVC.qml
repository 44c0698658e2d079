import QtQuick
import Leafund

Page {
    id: page

    required property LabelBridge welcome
    required property TextFieldBridge nameField
    required property TextFieldBridge passwordField
    required property TextFieldBridge passwordConfirmField
    required property ButtonBridge signUpButton

    columnStart: pane.columnStart

    Meadow {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }

    ScrollPane {
        id: pane
        root: page.root
        centred: true

        Medallion {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: page.height > 8 * Theme.mark
            icon: IconItem.Sprout
        }
        Words {
            view: page.welcome
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            font { pointSize: Theme.lead; weight: Font.DemiBold }
        }
        Item { width: parent.width; height: Theme.half }
        TextEntry {
            view: page.nameField
            next: password
            width: parent.width
        }
        TextEntry {
            id: password
            view: page.passwordField
            next: again
            width: parent.width
        }
        TextEntry {
            id: again
            view: page.passwordConfirmField
            next: again
            width: parent.width
        }
        Button {
            view: page.signUpButton
            width: parent.width
        }
    }
}
