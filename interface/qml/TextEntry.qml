import QtQuick
import Leafund

// An input of one line. A message of the screen, which is red and bold, may take several.
EntryBox {
    id: entry

    required property TextFieldBridge view
    // Where Return leads: to an input, or to itself where it is the last of several. Null where the
    // screen sees to it.
    property EntryBox next: null

    bridge: view
    input: field
    empty: !field.text && !field.preeditText
    onMessageSelected: field.selectAll()

    TextInput {
        id: field
        // The first characters of a password over a message, before they are committed.
        readonly property bool composing: entry.view.secure && preeditText !== ""

        objectName: entry.view.name
        width: parent.width
        activeFocusOnTab: true
        clip: true
        // On blur, scroll to the start.
        autoScroll: activeFocus
        onActiveFocusChanged: if (!activeFocus) ensureVisible(0)
        activeFocusOnPress: false
        color: entry.view.coloured ? entry.view.textColor : Theme.black
        font { pointSize: Theme.lead; weight: entry.view.coloured ? Font.Bold : Font.Normal }
        echoMode: entry.view.masked || composing ? TextInput.Password : TextInput.Normal
        inputMethodHints: entry.view.inputHints
        horizontalAlignment: Desktop.mirrored ? TextInput.AlignLeft : undefined
        wrapMode: entry.view.coloured ? TextInput.Wrap : TextInput.NoWrap
        maximumLength: 0x7fffffff
        selectByMouse: true
        selectionColor: Theme.button
        selectedTextColor: Theme.buttonInk

        // The toolkit writes, and not the user.
        property bool rewriting: false
        // Not bound: an old text is told to assistive technology in clear when a new one is set over
        // it, and a password must not be.
        function write(written: string) {
            if (text === written)
                return;
            rewriting = true;
            if (entry.view.secure)
                remove(0, length);
            text = written;
            rewriting = false;
        }
        readonly property var breaks: /[\r\n]/
        // Lines are pasted, or given by an input method; they begin where the selection did or, where
        // that has been told anew already, as far before the caret as the text has grown. Up to there
        // it is as before.
        function takeOneLine() {
            const before = entry.view.text;
            const grown = text.length - before.length;
            let start = Math.max(0, Math.min(selectionStart, cursorPosition - grown));
            for (let i = 0; i < start; ++i)
                if (text[i] !== before[i])
                    start = i;
            // Not by a pattern for both ends: on many breaks in the middle that takes quadratic time.
            let first = start, end = cursorPosition;
            while (first < end && breaks.test(text[first]))
                ++first;
            while (first < end && breaks.test(text[end - 1]))
                --end;
            const line = text.slice(first, end).replace(/\r\n|\r|\n/g, " ");
            write(text.slice(0, start) + line + text.slice(cursorPosition));
            cursorPosition = start + line.length;
        }
        Component.onCompleted: write(entry.view.text)
        Connections {
            target: entry.view
            function onRefreshed() { field.write(entry.view.text); }
        }

        onTextEdited: {
            if (rewriting)
                return;
            if (breaks.test(text))
                takeOneLine();
            entry.view.edit(text);
        }
        EnterKey.type: entry.next === entry ? Qt.EnterKeyDone
                                            : entry.next ? Qt.EnterKeyNext : Qt.EnterKeyDefault
        onAccepted: {
            entry.view.pressReturn();
            if (entry.next === entry)
                entry.view.endEditing();
            else if (entry.next)
                entry.next.input.forceActiveFocus(Qt.TabFocusReason);
        }

        Accessible.role: Accessible.EditableText
        Accessible.name: entry.view.accessibleName
        Accessible.description: entry.accessibleReason
        // Not Accessible.passwordEdit: it takes the name away, and the role follows the echo mode.
    }
}
