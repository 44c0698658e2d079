import QtQuick
import Leafund

FocusScope {
    id: page

    required property SceneObject scene
    readonly property var views: scene.views

    width: scene.root.width
    height: scene.root.height
    Keys.forwardTo: [pane]

    ScrollPane {
        id: pane
        scene: page.scene

        Story {
            picture: page.views.rideStoryPicture
            title: page.views.rideStoryTitle
            words: page.views.rideStoryText
            source: "biking-to-work.jpg"
            width: parent.width
        }
        Story {
            picture: page.views.compostStoryPicture
            title: page.views.compostStoryTitle
            words: page.views.compostStoryText
            source: "update-compost.jpg"
            width: parent.width
        }
        Story {
            picture: page.views.pledgeStoryPicture
            title: page.views.pledgeStoryTitle
            words: page.views.pledgeStoryText
            source: "solar-panel-house.jpg"
            width: parent.width
        }
    }
}
