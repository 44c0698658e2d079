import QtQuick
import Leafund

Page {
    id: page

    required property LabelBridge test
    required property LabelBridge updateOneDate
    required property ImageBridge updateOneImage
    required property TextViewBridge updateOneText

    columnStart: pane.columnStart

    ScrollPane {
        id: pane
        root: page.root
        most: Theme.column

        // A post: what it is about and of when, its picture from edge to edge, its text.
        Card {
            width: parent.width
            inset: Theme.hairline

            Column {
                x: Theme.gap
                width: parent.width - 2 * x
                topPadding: page.test.text ? Theme.gap : 0
                Title {
                    view: page.test
                    width: parent.width
                    height: text ? whole : 0
                    readonly property real whole: implicitHeight
                }
                Words {
                    view: page.updateOneDate
                    width: parent.width
                    height: text ? whole : 0
                    // Read also where there is no text: the first reading lays it out.
                    readonly property real whole: implicitHeight
                    color: Theme.quiet
                }
            }
            Picture {
                view: page.updateOneImage
                round: false
                width: parent.width
                height: width * 0.75  // as the pictures are drawn: nothing of an infographic is cut off
            }
            ReadingText {
                view: page.updateOneText
                width: parent.width
            }
        }
    }
}
