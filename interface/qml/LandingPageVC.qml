import QtQuick
import Leafund

Page {
    id: page

    ScrollPane {
        scene: page.scene
        centred: true

        IconItem {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(Theme.mark, page.height / 8)
            height: width
            icon: IconItem.Leaf
            color: Theme.accent
        }
        Column {
            width: parent.width
            Words {
                id: brand
                view: page.views.brand
                heading: true
                takesFocus: true
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                font { pointSize: Theme.display; weight: Font.Bold }
                FocusRing { target: brand }
            }
            Words {
                view: page.views.tagline
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                color: Theme.quiet
            }
        }
        Item { width: parent.width; height: Theme.unit }
        TextEntry {
            view: page.views.userEmail
            width: parent.width
        }
        TextEntry {
            view: page.views.password
            width: parent.width
        }
        Button {
            view: page.views.signInButton
            width: parent.width
        }
        Words {
            view: page.views.newHere
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            color: Theme.quiet
        }
        Button {
            view: page.views.signUpButton
            primary: false
            width: parent.width
        }
    }
}
