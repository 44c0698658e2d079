import QtQuick
import Leafund

// A campaign as one picture: who it is by, what it is about and how far it has come.
Item {
    id: head

    required property ImageBridge picture
    required property LabelBridge title
    required property LabelBridge by
    required property LabelBridge creator
    required property LabelBridge fundsHeading
    required property ProgressBridge bar
    required property LabelBridge raised
    required property LabelBridge goal
    required property bool slides
    readonly property real portrait: 130
    readonly property bool reached: funds.reached

    implicitHeight: column.height

    Paper {
        y: head.portrait / 2
        width: parent.width
        height: parent.height - y
        color: head.reached ? Theme.accentPale : Theme.card
    }

    Column {
        id: column
        x: Theme.gap
        width: parent.width - 2 * x
        spacing: Theme.gap
        bottomPadding: Theme.space

        Picture {
            view: head.picture
            anchors.horizontalCenter: parent.horizontalCenter
            width: head.portrait
            height: head.portrait
        }
        Column {
            width: parent.width
            spacing: Theme.half
            Title {
                view: head.title
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
            }
            // One line in the middle, or two where the name is long; not mirrored, as words are read.
            Item {
                id: maker
                readonly property real blank: Theme.half * WindowClass.growth
                readonly property bool stacked: by.width + blank + creator.implicitWidth > width
                readonly property real start: (width - by.width - blank - creator.width) / 2
                width: parent.width
                height: creator.y + creator.height
                Words {
                    id: by
                    view: head.by
                    x: maker.stacked ? (parent.width - width) / 2 : maker.start
                    color: Theme.quiet
                }
                Words {
                    id: creator
                    view: head.creator
                    x: maker.stacked ? 0 : maker.start + by.width + maker.blank
                    y: maker.stacked ? by.height : 0
                    width: maker.stacked ? parent.width : implicitWidth
                    horizontalAlignment: Text.AlignHCenter
                    color: Theme.quiet
                    font.weight: Font.DemiBold
                }
            }
        }
        CampaignFunds {
            id: funds
            heading: head.fundsHeading
            bar: head.bar
            raised: head.raised
            goal: head.goal
            slides: head.slides
            width: parent.width
        }
    }
}
