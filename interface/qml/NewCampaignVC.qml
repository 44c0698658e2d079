import QtQuick
import Leafund

Page {
    id: page

    required property TextFieldBridge nameOfCreator
    required property TextFieldBridge nameOfCampaign
    required property TextViewBridge shortDescription
    required property TextViewBridge fullDescription
    required property TextFieldBridge desiredFunding
    required property LabelBridge moneyErrorField
    required property TextFieldBridge imageURL
    required property TextViewBridge emailInvite
    required property ButtonBridge createButton

    columnStart: pane.columnStart

    // Who, what, for how much, and with whom: groups by the space between them.
    ScrollPane {
        id: pane
        root: page.root
        spacing: Theme.groups

        TextEntry {
            view: page.nameOfCreator
            width: parent.width
        }
        Column {
            width: parent.width
            spacing: Theme.gap
            TextEntry {
                view: page.nameOfCampaign
                width: parent.width
            }
            TextArea {
                view: page.shortDescription
                width: parent.width
            }
            TextArea {
                view: page.fullDescription
                width: parent.width
            }
        }
        Column {
            width: parent.width
            spacing: Theme.gap
            Column {
                width: parent.width
                spacing: Theme.unit
                TextEntry {
                    view: page.desiredFunding
                    reason: page.moneyErrorField
                    width: parent.width
                }
                ErrorWords {
                    view: page.moneyErrorField
                    width: parent.width
                }
            }
            TextEntry {
                view: page.imageURL
                width: parent.width
            }
        }
        TextArea {
            view: page.emailInvite
            width: parent.width
        }
        Button {
            view: page.createButton
            width: parent.width
        }
    }
}
