import QtQuick
import Leafund

// Two parts of a page: beside one another where the window has room for two columns, else under one
// another. The parts take their widths from here.
Grid {
    id: parts

    // Of the first one, where they stand beside one another.
    property real most: Theme.column
    readonly property real first: columns === 1 ? width : Math.floor(Math.min(most, (width - columnSpacing) / 2))
    readonly property real second: columns === 1 ? width : width - columnSpacing - first

    columns: WindowClass.columns
    columnSpacing: Theme.groups
    rowSpacing: Theme.gap
}
