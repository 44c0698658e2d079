import QtQuick
import Leafund

// The box around an input, with what belongs into it written above the text. `input` is the
// TextInput or TextEdit that the box is for.
Rectangle {
    id: box

    required property TextInputBridge bridge
    required property Item input
    // Neither text nor what is being composed is in it.
    required property bool empty
    default property alias content: place.data
    // The label that says why what it holds was refused; null where the input itself says so.
    property LabelBridge reason: null
    readonly property bool wrong: reason ? reason.visible : bridge.coloured
    readonly property string accessibleReason: reason && reason.visible ? reason.text : ""
    readonly property bool userIsIn: input.activeFocus || offer.open
    // How high an empty box is where its caption stands in the middle.
    readonly property real restHeight: 64
    // Empty and unfocused: the caption stands where the text will.
    readonly property bool resting: !userIsIn && empty

    // As much afloat as at rest, so that nothing moves when the caption does.
    readonly property real captionRoom: caption.lineCount * captionLine.height
    FontMetrics {
        id: captionLine
        font.pointSize: Theme.body
    }

    visible: bridge.visible
    implicitHeight: Math.max(Theme.target,
                             captionRoom + input.height + 2 * Theme.unit + Theme.half)
    radius: Theme.radius
    color: Theme.card
    border {
        width: Theme.hairline + (userIsIn ? 1 : 0) + (wrong ? 1 : 0)
        color: wrong ? Theme.alert : userIsIn ? Theme.accent : Theme.outline
    }

    // The toolkit ended the editing: the window follows.
    readonly property bool editing: bridge.editing
    onEditingChanged: {
        if (editing)
            return;
        watch.leave();
        if (input.activeFocus)
            forceActiveFocus(Qt.ActiveWindowFocusReason);
        else
            input.focus = false;
    }

    // The box then keeps the place among the controls, from which Tab leads on.
    Keys.onTabPressed: input.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    Keys.onBacktabPressed: input.forceActiveFocus(Qt.BacktabFocusReason)
    FocusRing { target: box }

    // Later, and only if assistive technology has not written over it meanwhile.
    function selectMessage() {
        if (bridge.showsMessage)
            messageSelected();
    }
    // The input selects what it holds, a message.
    signal messageSelected

    FocusWatch {
        id: watch
        target: box.input
        onEntered: {
            if (box.bridge.showsMessage)
                Qt.callLater(box.selectMessage);
            box.bridge.beginEditing();
        }
        onLeft: box.bridge.endEditing()
    }

    // A finger enters by a tap, since it may have come to scroll; after it, as the input places the
    // caret when the finger is lifted.
    function takeTap() {
        if (offer.open)
            return;  // the finger rested, and is lifted
        input.forceActiveFocus(Qt.MouseFocusReason);
        watch.enter();
        Qt.inputMethod.show();
        Qt.callLater(selectMessage);
    }
    TapHandler {
        parent: box.input
        onTapped: if (!watch.pressContinues()) box.takeTap()
    }
    // The pointer enters when it is pressed, from where it may select.
    PointHandler {
        parent: box.input
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onActiveChanged: if (active && !watch.pressContinues()) box.input.forceActiveFocus(Qt.MouseFocusReason)
    }
    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.IBeamCursor
        // Known when it is pressed alone: what is held always seems to be synthesized.
        property bool byFinger: false
        onPressed: press => {
            byFinger = press.source !== Qt.MouseEventNotSynthesized;
            offer.note();
        }
        onPressAndHold: press => {
            if (byFinger)
                offer.ask(Qt.point(press.x, press.y));
            press.accepted = byFinger;  // a slow click is a click
        }
        onClicked: box.takeTap()
    }

    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Menu
            || (event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier);
        if (event.accepted)
            offer.askAtCaret();
    }

    Text {
        id: caption
        readonly property real drop: (Math.min(box.height, box.restHeight) - height) / 2
        anchors { left: parent.left; right: parent.right }
        anchors { leftMargin: Theme.gap; rightMargin: Theme.gap + (sign.visible ? sign.width : 0) }
        y: box.resting ? Math.max(Theme.unit, drop) : Theme.unit
        text: box.bridge.placeholder
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignLeft
        wrapMode: Text.Wrap
        color: Theme.quiet
        font.pointSize: box.resting ? Theme.body : Theme.small
        Behavior on y {
            enabled: !Desktop.lessMotion
            Fade {}
        }
        Accessible.ignored: true
    }

    // Of a message in the input; a label beside it has its own.
    IconItem {
        id: sign
        anchors { right: parent.right; rightMargin: Theme.unit }
        y: Theme.half
        visible: box.wrong && !box.reason
        width: Theme.icon
        height: width
        icon: IconItem.Alert
        color: Theme.alert
    }

    // A message in the input is read out when it comes, wherever the user is.
    Announcement {
        anchors.fill: place
        view: box.bridge
        message: box.bridge.showsMessage ? box.bridge.text : ""
        editing: box.bridge.editing
        place: box
        Accessible.description: box.bridge.accessibleName
    }

    Item {
        id: place
        anchors { left: parent.left; right: parent.right }
        anchors { top: parent.top; bottom: parent.bottom }
        anchors { leftMargin: Theme.gap; rightMargin: Theme.gap }
        anchors { topMargin: Theme.unit + box.captionRoom + Theme.half; bottomMargin: Theme.unit }
    }

    EditOffer {
        id: offer
        area: box.input
        text: box.input
        bridge: box.bridge
        onAsked: {
            const entering = !box.input.activeFocus;
            box.input.forceActiveFocus(Qt.MouseFocusReason);
            if (entering && box.bridge.showsMessage)
                offer.noteAll();
        }
    }
}
