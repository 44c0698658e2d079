import QtQuick
import Leafund

// The box around an input, with what belongs into it written above the text. `input` is the
// TextInput or TextEdit that the box is for.
Rectangle {
    id: box

    required property ViewObject view
    required property Item input
    default property alias content: place.data
    // Whether what it holds was refused, where the reason is told elsewhere.
    property bool wrong: view.coloured
    readonly property bool userIsIn: input.activeFocus
    // Nothing in it and nobody: the caption stands where the text will.
    readonly property bool resting: !userIsIn && !input.text && !input.preeditText

    visible: view.visible
    implicitHeight: Math.max(Theme.target,
                             caption.height + input.height + 2 * Theme.unit + Theme.half)
    radius: Theme.radius
    color: Theme.card
    border {
        width: userIsIn && wrong ? Theme.ringWidth : userIsIn || wrong ? Theme.caret : Theme.hairline
        color: wrong ? Theme.alert : userIsIn ? Theme.accent : Theme.line
    }

    // The toolkit ended the editing: the glass follows.
    readonly property bool editing: view.editing
    onEditingChanged: {
        if (editing)
            return;
        watch.leave();
        input.focus = false;
    }

    // Later, and only if assistive technology has not written over it meanwhile.
    function selectMessage() {
        if (view.showsMessage)
            input.selectAll();
    }

    FocusWatch {
        id: watch
        target: box.input
        onEntered: {
            if (box.view.showsMessage)
                Qt.callLater(box.selectMessage);
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
        readonly property real drop: (Math.min(box.height, Theme.restHeight) - height) / 2
        anchors { left: parent.left; right: parent.right }
        anchors { leftMargin: Theme.gap; rightMargin: Theme.gap }
        y: box.resting ? Math.max(Theme.unit, drop) : Theme.unit
        text: box.view.placeholder
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        color: Theme.quiet
        font.pointSize: Theme.small
        Accessible.ignored: true
    }

    // A message in the input is read out when it comes, wherever the user is.
    Item {
        readonly property string message: box.view.showsMessage ? box.view.text : ""
        anchors.fill: place
        visible: message !== ""
        Accessible.role: Accessible.Notification
        Accessible.name: message
        Accessible.description: box.view.accessibleName
    }

    Item {
        id: place
        anchors { left: parent.left; right: parent.right }
        anchors { top: parent.top; bottom: parent.bottom }
        anchors { leftMargin: Theme.gap; rightMargin: Theme.gap }
        anchors { topMargin: Theme.unit + caption.height + Theme.half; bottomMargin: Theme.unit }
    }
}
