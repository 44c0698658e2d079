import QtQuick
import Leafund

// A row of a campaign list: on its card a round picture, the title and the pitch.
Pressable {
    id: row

    required property CellBridge view

    readonly property real inset: Math.max(Theme.gap, (width - Theme.column) / 2)

    // A card does not lie in the middle of its row.
    readonly property real cardOffset: 2.5
    readonly property real cardTop: 10
    // What it leaves to title and pitch.
    readonly property real cardRoom: 129
    readonly property int pitchLines: 4

    x: view.x
    y: view.y
    width: view.width
    height: view.height
    visible: view.visible
    ringOutset: -Theme.half
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
        anchors { fill: parent; topMargin: row.cardTop; bottomMargin: row.cardTop - 2 * row.cardOffset }
        visible: row.held
        color: Theme.veil
    }

    Picture {
        id: picture
        view: row.view.picture
        x: row.inset
        anchors { verticalCenter: parent.verticalCenter; verticalCenterOffset: row.cardOffset }
        width: view.width
        height: view.height
        Accessible.ignored: true
    }

    Column {
        anchors { left: picture.right; leftMargin: Theme.gap }
        anchors { right: parent.right; rightMargin: row.inset }
        anchors { verticalCenter: parent.verticalCenter; verticalCenterOffset: row.cardOffset }
        spacing: Theme.half

        StillText {
            id: title
            width: parent.width
            text: row.view.title.text
            maximumLineCount: 2
            color: Theme.ink
            font { pointSize: row.share * Theme.lead; weight: Font.Bold }
            Accessible.ignored: true
        }
        StillText {
            id: pitch
            width: parent.width
            text: row.view.detail.text
            maximumLineCount: Math.max(1, Math.min(row.pitchLines, Math.floor(room / line.height)))
            readonly property real room: row.cardRoom - title.height - Theme.half
            color: Theme.quiet
            font.pointSize: row.share * Theme.body
            Accessible.ignored: true
        }
    }
}
