import QtQuick
import Leafund

// A story of the news: its picture, which comes with the program, its title and its text.
Rectangle {
    id: story

    required property ViewObject picture
    required property ViewObject title
    required property ViewObject words
    required property url source

    implicitHeight: column.implicitHeight
    color: Theme.card
    border { width: Theme.hairline; color: Theme.line }

    Column {
        id: column
        x: Theme.hairline
        width: parent.width - 2 * x
        spacing: Theme.unit
        topPadding: x
        bottomPadding: Theme.gap

        Image {
            objectName: story.picture.name
            visible: story.picture.visible
            width: parent.width
            height: width * Theme.storyShape
            source: story.source
            fillMode: Image.PreserveAspectCrop
            Accessible.role: Accessible.Graphic
            Accessible.name: story.picture.accessibleName
        }
        Words {
            view: story.title
            heading: true
            x: Theme.gap
            width: parent.width - 2 * x
            font { pointSize: Theme.lead; weight: Font.Bold }
        }
        Words {
            view: story.words
            x: Theme.gap
            width: parent.width - 2 * x
        }
    }
}
