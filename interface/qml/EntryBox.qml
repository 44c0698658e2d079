import QtQuick
import Leafund

// The box around an input, with what belongs into it written above the text. `input` is the
// TextInput or TextEdit that the box is for.
Rectangle {
    id: box

    required property ViewObject view
    required property Item input
    default property alias content: place.data
    readonly property bool userIsIn: input.activeFocus

    visible: view.visible
    implicitHeight: Math.max(Theme.target,
                             caption.height + input.height + 2 * Theme.unit + Theme.half)
    radius: Theme.radius
    color: Theme.card
    border {
        width: userIsIn ? Theme.caret : Theme.hairline
        color: userIsIn ? Theme.accent : Theme.line
    }

    // The toolkit ended the editing: the glass follows.
    readonly property bool editing: view.editing
    onEditingChanged: {
        if (editing)
            return;
        watch.leave();
        input.focus = false;
    }

    FocusWatch {
        id: watch
        target: box.input
        onEntered: {
            if (box.view.showsMessage)
                Qt.callLater(box.input.selectAll);
            box.view.beginEditing();
        }
        onLeft: box.view.endEditing()
    }

    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.IBeamCursor
        onPressed: box.input.forceActiveFocus(Qt.MouseFocusReason)
    }

    Text {
        id: caption
        anchors { left: parent.left; right: parent.right; top: parent.top }
        anchors { leftMargin: Theme.gap; rightMargin: Theme.gap; topMargin: Theme.unit }
        text: box.view.placeholder
        textFormat: Text.PlainText
        elide: Text.ElideRight
        color: Theme.quiet
        font.pointSize: Theme.small
        Accessible.ignored: true
    }

    Item {
        id: place
        anchors { left: parent.left; right: parent.right }
        anchors { top: caption.bottom; bottom: parent.bottom }
        anchors { leftMargin: Theme.gap; rightMargin: Theme.gap }
        anchors { topMargin: Theme.half; bottomMargin: Theme.unit }
    }
}
