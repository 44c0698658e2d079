import QtQuick
import Leafund

Page {
    id: page

    required property LabelBridge amount
    required property LabelBridge campaignName
    required property LabelBridge question
    required property LabelBridge outcome
    required property ButtonBridge yesButton
    required property ButtonBridge noButton

    Meadow {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }

    columnStart: pane.columnStart

    ScrollPane {
        id: pane
        root: page.root
        centred: true
        most: Theme.feed

        Card {
            width: parent.width

            TwoColumns {
                id: parts
                width: parent.width
                verticalItemAlignment: Grid.AlignVCenter

                Column {
                    width: parts.first
                    spacing: Theme.gap
                    Medallion {
                        anchors.horizontalCenter: parent.horizontalCenter
                        visible: page.height > 8 * Theme.mark
                        icon: IconItem.Heart
                    }
                    Title {
                        view: page.amount
                        heading: false
                        largest: Theme.hero
                        width: parent.width
                        horizontalAlignment: Text.AlignHCenter
                        color: Theme.accentDeep
                        lineHeight: 1
                    }
                    Words {
                        view: page.campaignName
                        width: parent.width
                        horizontalAlignment: Text.AlignHCenter
                        font { pointSize: Theme.lead; weight: Font.Bold }
                    }
                }
                Column {
                    width: parts.second
                    spacing: Theme.gap
                    Words {
                        view: page.question
                        heading: true
                        font { pointSize: Theme.lead; weight: Font.DemiBold }
                        width: parent.width
                        horizontalAlignment: Text.AlignHCenter
                    }
                    Words {
                        view: page.outcome
                        width: parent.width
                        horizontalAlignment: Text.AlignHCenter
                        color: Theme.quiet
                    }
                    Item { width: parent.width; height: Theme.half }
                    Button {
                        view: page.yesButton
                        width: parent.width
                    }
                    Button {
                        view: page.noButton
                        primary: false
                        width: parent.width
                    }
                }
            }
        }
    }
}
