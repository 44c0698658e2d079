import QtQuick
import Leafund

Page {
    id: page

    ScrollPane {
        scene: page.scene
        Words {
            view: page.views.welcome
            width: parent.width
            font.pointSize: Theme.lead
        }
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
