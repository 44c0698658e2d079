import QtQuick
import Leafund

// What stands in a list without rows. Where it has little room its words are set smaller.
Column {
    id: empty

    required property TableBridge table
    required property int icon
    // The height there is for it.
    required property real room

    spacing: Theme.unit

    readonly property bool low: room < 3 * Theme.mark
    readonly property real lineRoom: room / 2 - Theme.unit

    component Line: Text {
        width: parent.width
        fontSizeMode: Text.VerticalFit
        minimumPointSize: Theme.small / 2
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        color: Theme.ink
        font.pointSize: Theme.body
        Accessible.name: text
    }

    Medallion {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: !empty.low
        icon: empty.icon
    }
    Line {
        text: empty.table.emptyHeading
        height: Math.min(implicitHeight, empty.lineRoom)
        font { pointSize: Theme.lead; weight: Font.Bold }
        Accessible.role: Accessible.Heading
    }
    Line {
        text: empty.table.emptySentence
        height: Math.min(implicitHeight, empty.lineRoom)
        color: Theme.quiet
        Accessible.role: Accessible.StaticText
    }
}
