import QtQuick
import Leafund

Page {
    id: page

    ScrollPane {
        scene: page.scene
        activeFocusOnTab: true

        Column {
            width: parent.width
            spacing: Theme.half
            Words {
                view: page.views.test
                heading: true
                width: parent.width
                font { pointSize: Theme.display; weight: Font.Bold }
            }
            Words {
                view: page.views.updateOneDate
                width: parent.width
                color: Theme.quiet
            }
        }
        Picture {
            view: page.views.updateOneImage
            description: page.views.test.text
            width: parent.width
            height: width * Theme.pictureShape
        }
        ReadingText {
            view: page.views.updateOneText
            width: parent.width
        }
    }
}
