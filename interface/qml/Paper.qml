import QtQuick
import Leafund

// The ground of what belongs together: a sheet of paper with an edge.
Rectangle {
    radius: Theme.cardRadius
    color: Theme.card
    border { width: Theme.hairline; color: Theme.seam }
}
