import QtQuick
import Leafund

Page {
    id: page

    ScrollPane {
        scene: page.scene
        Picture {
            view: page.views.campaignImage
            description: page.views.campaignTitle.text
            anchors.horizontalCenter: parent.horizontalCenter
            width: Theme.portrait
            height: Theme.portrait
        }
        Column {
            width: parent.width
            spacing: Theme.half
            Words {
                view: page.views.campaignTitle
                heading: true
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                font { pointSize: Theme.display; weight: Font.Bold }
            }
            Flow {
                id: byLine
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(parent.width, by.implicitWidth + spacing + creator.implicitWidth)
                spacing: Theme.half
                Words {
                    id: by
                    view: page.views.byCreator
                    color: Theme.quiet
                }
                Words {
                    id: creator
                    view: page.views.campaignCreator
                    width: Math.min(implicitWidth, byLine.parent.width)
                    color: Theme.quiet
                    font.weight: Font.DemiBold
                }
            }
        }

        CampaignFunds {
            views: page.views
            width: parent.width
        }

        Column {
            width: parent.width
            spacing: Theme.unit
            visible: page.views.dollarAmountField.visible || page.views.errorLabel.visible
            TextEntry {
                view: page.views.dollarAmountField
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
            spacing: Theme.unit
            Words {
                view: page.views.about
                heading: true
                width: parent.width
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
