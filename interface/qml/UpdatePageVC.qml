import QtQuick
import Leafund

Page {
    id: page

    ScrollPane {
        scene: page.scene

        // A post: what it is about and of when, its picture from edge to edge, its text.
        Card {
            width: parent.width
            inset: Theme.hairline

            Column {
                x: Theme.gap
                width: parent.width - 2 * x
                topPadding: Theme.gap
                Title {
                    view: page.views.test
                    width: parent.width
                }
                Words {
                    view: page.views.updateOneDate
                    width: parent.width
                    height: text ? whole : 0
                    // Read also where there is no text: the first reading lays it out.
                    readonly property real whole: implicitHeight
                    color: Theme.quiet
                }
            }
            Picture {
                view: page.views.updateOneImage
                width: parent.width
                height: width * Theme.pictureShape
            }
            ReadingText {
                view: page.views.updateOneText
                width: parent.width
            }
        }
    }
}
