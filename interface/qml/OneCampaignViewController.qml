import QtQuick
import Leafund

Page {
    id: page

    ScrollPane {
        scene: page.scene

        CampaignHead {
            views: page.views
            width: parent.width
        }

        // The reason stands right below the amount that was refused.
        Column {
            width: parent.width
            spacing: Theme.unit
            visible: page.views.dollarAmountField.visible || page.views.errorLabel.visible
            TextEntry {
                view: page.views.dollarAmountField
                reason: page.views.errorLabel
                width: parent.width
            }
            ErrorWords {
                view: page.views.errorLabel
                width: parent.width
            }
        }
        Button {
            view: page.views.FundButton
            width: parent.width
        }
        Button {
            view: page.views.campaignUpdates
            primary: false
            width: parent.width
        }

        Column {
            width: parent.width
            topPadding: Theme.unit
            spacing: Theme.gap
            Words {
                view: page.views.about
                heading: true
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                font { pointSize: Theme.lead; weight: Font.Bold }
            }
            ReadingText {
                view: page.views.campaignText
                width: parent.width
            }
        }

        Unseen { view: page.views.campaignPhoto }
        Unseen { view: page.views.campaignDescription }
    }
}
