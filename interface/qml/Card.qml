import QtQuick
import Leafund

// White ground for what belongs together, with its content in a column.
Rectangle {
    id: card

    default property alias content: column.data
    property alias spacing: column.spacing
    property real inset: Theme.space

    implicitHeight: column.height + 2 * inset
    radius: Theme.cardRadius
    color: Theme.card
    border { width: Theme.hairline; color: Theme.seam }

    Column {
        id: column
        x: card.inset
        y: card.inset
        width: parent.width - 2 * x
        spacing: Theme.gap
    }
}
