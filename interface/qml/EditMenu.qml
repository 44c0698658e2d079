import QtQuick
import Leafund

// What can be done with a text: a small menu over its page, where it was asked for. An input is not
// left for it, and what is masked is neither cut nor copied.
FocusScope {
    id: menu

    // What it is open for.
    property EditOffer offer: null
    // { label, act } of each row; no type of QML holds a function.
    property var rows: []
    property point place
    property Item before: null

    objectName: "editMenu"
    visible: offer !== null

    function open(offer: EditOffer, place: point) {
        const text = offer.text;
        const [cut, copy, paste, selectAll] = offer.bridge.editLabels;
        const masked = (text.echoMode ?? TextInput.Normal) !== TextInput.Normal;
        const selected = offer.end - offer.start;
        const copied = !masked && selected > 0;
        const every = [
            { offered: copied && !text.readOnly, label: cut, act: () => text.cut() },
            { offered: copied, label: copy, act: () => text.copy() },
            { offered: text.canPaste, label: paste, act: () => text.paste() },
            { offered: !text.readOnly && selected < text.length, label: selectAll,
              act: () => text.selectAll() }];
        const offered = every.filter(each => each.offered);
        if (offered.length === 0)
            return;
        if (!visible)
            before = Window.activeFocusItem;
        rows = offered;
        menu.place = place;
        menu.offer = offer;
        offer.open = true;
        repeater.itemAt(0).forceActiveFocus(Qt.PopupFocusReason);
    }
    function close() {
        watch.endPress();
        const typed = before === offer?.text;
        if (before && activeFocus)
            before.forceActiveFocus(Qt.PopupFocusReason);
        forget();
        if (typed)
            Qt.inputMethod.show();
    }
    FocusWatch {
        id: watch
        target: menu
    }
    // What was selected is left as leaving it for anything else would.
    function forget() {
        if (!offer)
            return;
        const text = offer.text;
        offer.open = false;
        offer = null;
        if (!text.activeFocus)
            text.deselect();
    }
    function choose(act: var) {
        const chosen = offer;
        close();
        chosen.text.select(chosen.start, chosen.end);
        act();
    }
    function step(from: int, way: int) {
        repeater.itemAt((from + way + repeater.count) % repeater.count).forceActiveFocus(Qt.TabFocusReason);
    }

    // The page was left, or the focus went elsewhere.
    onEnabledChanged: if (!enabled) forget()
    onActiveFocusChanged: if (!activeFocus && Window.active) forget()

    // Nothing scrolls below it. What is held with Control is the window's.
    Keys.onPressed: event => {
        event.accepted = !(event.modifiers & Qt.ControlModifier);
        if ([Qt.Key_Escape, Qt.Key_Back, Qt.Key_Menu, Qt.Key_F6, Qt.Key_F10].includes(event.key)
            || (event.key === Qt.Key_Left && event.modifiers === Qt.AltModifier))
            close();
    }
    WheelHandler {}

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onPressed: press => {
            menu.close();
            press.accepted = press.button === Qt.LeftButton;  // the other may ask for another text's
        }
    }

    Rectangle {
        x: Math.max(Theme.half, Math.min(menu.width - width - Theme.half, menu.place.x))
        y: Math.max(Theme.half, Math.min(menu.height - height - Theme.half, menu.place.y))
        width: column.width + 2 * Theme.hairline
        height: column.height + 2 * Theme.hairline
        radius: Theme.cardRadius
        color: Theme.card
        border { width: Theme.hairline; color: Theme.outline }

        Accessible.role: Accessible.PopupMenu

        Column {
            id: column
            x: Theme.hairline
            y: Theme.hairline
            width: menu.rows.reduce((most, row) => Math.max(most, font.advanceWidth(row.label)), 0) + 2 * Theme.gap

            FontMetrics {
                id: font
                font.pointSize: Theme.body
            }

            Repeater {
                id: repeater
                model: menu.rows
                Pressable {
                    id: row
                    required property var modelData
                    required property int index
                    // The focus goes back to where it came from.
                    readonly property bool passing: true

                    objectName: modelData.label
                    width: column.width
                    height: Math.max(Theme.target, label.implicitHeight + Theme.unit)
                    ringOutset: 0
                    onPressed: menu.choose(modelData.act)

                    Keys.onUpPressed: menu.step(index, -1)
                    Keys.onDownPressed: menu.step(index, 1)
                    Keys.onTabPressed: menu.step(index, 1)
                    Keys.onBacktabPressed: menu.step(index, -1)

                    Accessible.role: Accessible.MenuItem
                    Accessible.onPressAction: accessiblePressAction()
                    Accessible.name: modelData.label

                    Rectangle {
                        anchors.fill: parent
                        color: row.shade
                    }
                    Text {
                        id: label
                        anchors.verticalCenter: parent.verticalCenter
                        anchors { left: parent.left; leftMargin: Theme.gap }
                        text: row.modelData.label
                        textFormat: Text.PlainText
                        color: Theme.ink
                        font.pointSize: Theme.body
                        Accessible.ignored: true
                    }
                }
            }
        }
    }
}
