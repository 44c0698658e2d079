import QtQuick
import Leafund

Page {
    id: page

    ScrollPane {
        scene: page.scene
        TextEntry {
            view: page.views.nameOfCreator
            width: parent.width
        }
        TextEntry {
            view: page.views.nameOfCampaign
            width: parent.width
        }
        TextArea {
            view: page.views.shortDescription
            width: parent.width
        }
        TextArea {
            view: page.views.fullDescription
            width: parent.width
        }
        Column {
            width: parent.width
            spacing: Theme.unit
            TextEntry {
                view: page.views.desiredFunding
                reason: page.views.moneyErrorField
                width: parent.width
            }
            ErrorWords {
                view: page.views.moneyErrorField
                width: parent.width
            }
        }
        TextEntry {
            view: page.views.imageURL
            width: parent.width
        }
        TextArea {
            view: page.views.emailInvite
            width: parent.width
        }
        Button {
            view: page.views.createButton
            width: parent.width
        }
    }
}
