import QtQuick
import Leafund

Page {
    id: page

    required property ImageBridge campaignImage
    required property LabelBridge campaignTitle
    required property LabelBridge byCreator
    required property LabelBridge campaignCreator
    required property LabelBridge labelAboveSlider
    required property ProgressBridge slider
    required property LabelBridge currentFund
    required property LabelBridge desiredFund
    required property TextFieldBridge dollarAmountField
    required property LabelBridge errorLabel
    required property ButtonBridge fundButton
    required property ButtonBridge campaignUpdates
    required property LabelBridge about
    required property TextViewBridge campaignText
    required property ImageBridge campaignPhoto
    required property PlainBridge campaignDescription

    columnStart: pane.columnStart

    ScrollPane {
        id: pane
        root: page.root
        most: Theme.aside + Theme.groups + Theme.reading
        anchors.bottomMargin: pin.height

        TwoColumns {
            id: parts
            width: parent.width
            most: Theme.aside

            Column {
                width: parts.first
                spacing: Theme.gap
                CampaignHead {
                    picture: page.campaignImage
                    title: page.campaignTitle
                    by: page.byCreator
                    creator: page.campaignCreator
                    fundsHeading: page.labelAboveSlider
                    bar: page.slider
                    raised: page.currentFund
                    goal: page.desiredFund
                    slides: page.slides
                    width: parent.width
                }

                // The reason stands right below the amount that was refused.
                Column {
                    width: parent.width
                    spacing: Theme.unit
                    visible: page.dollarAmountField.visible || page.errorLabel.visible
                    TextEntry {
                        view: page.dollarAmountField
                        reason: page.errorLabel
                        width: parent.width
                    }
                    ErrorWords {
                        view: page.errorLabel
                        width: parent.width
                    }
                }
                Item {
                    id: place
                    width: parent.width
                    height: fund.height
                    visible: page.fundButton.visible && !pin.visible
                }
                Button {
                    view: page.campaignUpdates
                    primary: false
                    width: parent.width
                }
            }
            Column {
                width: parts.second
                topPadding: parts.columns === 1 ? Theme.unit : 0
                spacing: Theme.gap
                Words {
                    view: page.about
                    heading: true
                    width: parent.width
                    font { pointSize: Theme.lead; weight: Font.Bold }
                }
                ReadingText {
                    view: page.campaignText
                    width: parent.width
                }
            }
        }

        Unseen { view: page.campaignPhoto }
        Unseen { view: page.campaignDescription }
    }

    // In a low window, as above a keyboard, the button stays in sight at the lower edge. In the lowest
    // it would leave too little of the page.
    Rectangle {
        id: pin

        readonly property bool low: page.height < Theme.lowWindow && page.height >= Theme.lowestWindow

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: visible ? fund.height + 2 * Theme.unit : 0
        visible: page.fundButton.visible && low
        color: Theme.card

        Rectangle {
            width: parent.width
            height: Theme.hairline
            color: Theme.outline
        }
    }
    Button {
        id: fund
        parent: pin.low ? pin : place
        view: page.fundButton
        x: (parent.width - width) / 2
        y: pin.low ? Theme.unit : 0
        width: pin.low ? Math.min(Theme.column, parent.width - 2 * Theme.gap) : parent.width
    }
}
