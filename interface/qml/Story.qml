import QtQuick
import Leafund

// A story of the news: its picture, which comes with the program, its title and its text.
Paper {
    id: story

    required property ImageBridge picture
    required property LabelBridge title
    required property LabelBridge words
    required property url source

    implicitHeight: column.implicitHeight

    Column {
        id: column
        width: parent.width
        spacing: Theme.unit
        bottomPadding: Theme.gap

        Image {
            objectName: story.picture.name
            visible: story.picture.visible
            width: parent.width
            height: width * 0.6
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
            anchors { left: parent.left; leftMargin: Theme.gap }
            width: Math.min(Theme.line, parent.width - 2 * Theme.gap)
        }
    }

    // The picture's upper corners, round by what is laid over them.
    IconItem {
        width: Theme.cardRadius
        height: width
        icon: IconItem.Corner
        color: Theme.ground
    }
    IconItem {
        x: parent.width - width
        width: Theme.cardRadius
        height: width
        rotation: 90
        icon: IconItem.Corner
        color: Theme.ground
    }
}
