import QtQuick
import Leafund

// A sheet of paper with its content in a column.
Paper {
    id: card

    default property alias content: column.data
    property alias spacing: column.spacing
    property real inset: Theme.space

    implicitHeight: column.height + 2 * inset

    Column {
        id: column
        x: card.inset
        y: card.inset
        width: parent.width - 2 * x
        spacing: Theme.gap
    }
}
