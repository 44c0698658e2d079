import QtQuick
import Leafund

// The bar on top of a screen: the way back where there is one, the title, and what the screen adds.
Rectangle {
    id: bar

    required property BarBridge view
    default property alias trailing: trailing.data
    // How far from its edges the column below it begins and ends.
    required property real columnStart
    required property real columnEnd

    // Its words grow with the system's text as far as the bar, which does not, can hold them.
    readonly property real share: WindowClass.growth / WindowClass.textScale

    color: Theme.card

    // Here a reader is put when the screen comes, before the first control, to which Tab leads on.
    Text {
        id: title
        readonly property bool takesFocus: bar.view.title !== ""

        objectName: "barTitle"
        focus: takesFocus
        anchors.verticalCenter: parent.verticalCenter
        anchors { left: parent.left; right: trailing.left; rightMargin: Theme.unit }
        anchors.leftMargin: Math.max(bar.columnStart, back.visible ? Theme.half + back.width : 0)
        text: bar.view.title
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignLeft
        elide: Text.ElideRight
        fontSizeMode: Text.HorizontalFit
        minimumPointSize: Theme.small * bar.share
        color: Theme.ink
        font { pointSize: Theme.lead * bar.share; weight: Font.Bold }
        Accessible.role: Accessible.Heading
        Accessible.name: text

        // Round the words, which may be much shorter than the bar.
        FocusRing {
            target: title
            anchors.leftMargin: -Theme.unit
            anchors.rightMargin: title.width - title.contentWidth - Theme.unit
        }
    }

    Pressable {
        id: back
        objectName: "backButton"
        anchors { left: parent.left; leftMargin: Theme.half }
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.target
        height: Theme.target
        visible: bar.view.canGoBack
        ringOutset: 0
        onPressed: bar.view.goBack()
        Accessible.name: bar.view.backLabel

        Rectangle {
            anchors.centerIn: parent
            width: Theme.wide
            height: width
            radius: width / 2
            color: back.shade
        }
        IconItem {
            anchors.centerIn: parent
            width: Theme.icon
            height: Theme.icon
            icon: Desktop.mirrored ? IconItem.Forward : IconItem.Back
            color: Theme.accentDeep
        }
    }

    Row {
        id: trailing
        anchors { right: parent.right; rightMargin: bar.columnEnd }
        anchors.verticalCenter: parent.verticalCenter
    }

    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: Theme.hairline
        color: Theme.outline
    }
}
