import QtQuick
import Leafund

// Has the page show the menu of a text, after a long press of a finger on it or a click of the right
// button. It lies over what takes that click, which would move the caret of an input.
MouseArea {
    id: offer

    // On what the finger rests.
    required property Item area
    // What was selected when the press began: the text may place its caret where the finger is.
    property int start: 0
    property int end: 0
    function note() {
        start = text.selectionStart;
        end = text.selectionEnd;
    }
    // A message is selected as soon as it is entered.
    function noteAll() {
        start = 0;
        end = text.length;
    }

    // A TextInput or a TextEdit, or what EditMenu uses of them: they share no type.
    required property var text
    required property TextInputBridge bridge

    // The menu is there.
    property bool open: false

    // First.
    signal asked

    function ask(place: point) {
        asked();
        for (let each = parent; each; each = each.parent)
            if (each.offerEdits)
                return each.offerEdits(offer, mapToItem(each, place));
    }
    function askAtCaret() {
        note();
        const caret = text.cursorRectangle;
        ask(mapFromItem(text, caret.x, caret.y + caret.height));
    }

    anchors.fill: parent
    acceptedButtons: Qt.RightButton
    onPressed: note()
    onClicked: mouse => ask(Qt.point(mouse.x, mouse.y))

    TapHandler {
        id: finger
        parent: offer.area
        acceptedDevices: PointerDevice.TouchScreen | PointerDevice.Stylus
        onPressedChanged: if (pressed) offer.note()
        onLongPressed: offer.ask(offer.mapFromItem(offer.area, finger.point.position))
    }
}
