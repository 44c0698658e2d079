import QtQuick
import Leafund

FocusScope {
    id: page

    required property PlainBridge root
    required property ImageBridge rideStoryPicture
    required property LabelBridge rideStoryTitle
    required property LabelBridge rideStoryText
    required property ImageBridge compostStoryPicture
    required property LabelBridge compostStoryTitle
    required property LabelBridge compostStoryText
    required property ImageBridge pledgeStoryPicture
    required property LabelBridge pledgeStoryTitle
    required property LabelBridge pledgeStoryText

    width: root.width
    height: root.height
    Keys.forwardTo: [pane]

    ScrollPane {
        id: pane
        root: page.root
        most: Theme.feed

        Grid {
            id: stories
            readonly property real storyWidth: Math.floor((width + spacing) / columns) - spacing
            width: parent.width
            columns: WindowClass.expanded ? 2 : 1
            spacing: Theme.gap

            Story {
                picture: page.rideStoryPicture
                title: page.rideStoryTitle
                words: page.rideStoryText
                source: "biking-to-work.jpg"
                width: stories.storyWidth
            }
            Story {
                picture: page.compostStoryPicture
                title: page.compostStoryTitle
                words: page.compostStoryText
                source: "update-compost.jpg"
                width: stories.storyWidth
            }
            Story {
                picture: page.pledgeStoryPicture
                title: page.pledgeStoryTitle
                words: page.pledgeStoryText
                source: "solar-panel-house.jpg"
                width: stories.storyWidth
            }
        }
    }
}
