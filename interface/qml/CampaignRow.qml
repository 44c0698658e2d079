import QtQuick
import Leafund

// A row of a campaign list: on its card a round picture, the title, the pitch, and a sign that it
// opens.
Pressable {
    id: row

    required property CellBridge view

    // A card does not lie in the middle of its row.
    readonly property real cardOffset: 2.5
    readonly property real cardTop: 10
    readonly property real cardBottom: cardTop - 2 * cardOffset
    // What it leaves to title and pitch.
    readonly property real cardRoom: 129
    readonly property int titleLines: 3
    readonly property int pitchLines: 4

    x: view.x
    y: view.y
    width: view.width
    height: view.height
    visible: view.visible
    // Round the card.
    ringOutsetTop: Theme.half - cardTop
    ringOutsetBottom: Theme.half - cardBottom
    steady: true

    onPressed: view.tap()

    Accessible.role: Accessible.ListItem
    Accessible.onPressAction: accessiblePressAction()
    Accessible.name: title.text
    Accessible.description: pitch.text

    // The card does not grow with the system's text: where that is large, less of it is taken, so
    // that a title and a pitch of two lines each find room.
    readonly property real share: Math.min(1, (row.cardRoom - Theme.unit)
                                              / (2 * titleLine.height + 2 * pitchLine.height))
    FontMetrics {
        id: titleLine
        font { pointSize: Theme.lead; weight: Font.Bold }
    }
    FontMetrics {
        id: pitchLine
        font.pointSize: Theme.body
    }
    FontMetrics {
        id: titleMetrics
        font: title.font
    }
    FontMetrics {
        id: line
        font: pitch.font
    }

    CardItem {
        anchors.fill: parent
        view: row.view.content
        ground: Theme.ground
        white: Theme.white
    }

    Rectangle {
        anchors { fill: parent; topMargin: row.cardTop; bottomMargin: row.cardBottom }
        color: row.shade
    }

    Picture {
        id: picture
        view: row.view.picture
        anchors { left: parent.left; leftMargin: Theme.gap }
        anchors { verticalCenter: parent.verticalCenter; verticalCenterOffset: row.cardOffset }
        width: view.width
        height: view.height
        Accessible.ignored: true
    }

    IconItem {
        id: chevron
        anchors { right: parent.right; rightMargin: Theme.unit }
        anchors { verticalCenter: parent.verticalCenter; verticalCenterOffset: row.cardOffset }
        width: Theme.icon
        height: width
        icon: Desktop.mirrored ? IconItem.Back : IconItem.Forward
        color: Theme.outline
    }

    Column {
        anchors { left: picture.right; leftMargin: Theme.gap }
        anchors { right: chevron.left; rightMargin: Theme.half }
        anchors { verticalCenter: parent.verticalCenter; verticalCenterOffset: row.cardOffset }
        spacing: Theme.half

        StillText {
            id: title
            anchors.left: parent.left
            width: Math.min(parent.width, Theme.line)
            text: row.view.title.text
            flushRight: Desktop.mirrored
            // And a line of the pitch.
            readonly property real room: row.cardRoom - line.height - Theme.half
            maximumLineCount: Math.max(1, Math.min(row.titleLines, Math.floor(room / titleMetrics.height)))
            color: Theme.ink
            font { pointSize: row.share * Theme.lead; weight: Font.Bold }
            Accessible.ignored: true
        }
        StillText {
            id: pitch
            anchors.left: parent.left
            width: Math.min(parent.width, Theme.line)
            text: row.view.detail.text
            flushRight: Desktop.mirrored
            maximumLineCount: Math.max(1, Math.min(row.pitchLines, Math.floor(room / line.height)))
            readonly property real room: row.cardRoom - title.height - Theme.half
            color: Theme.quiet
            font.pointSize: row.share * Theme.body
            Accessible.ignored: true
        }
    }
}
