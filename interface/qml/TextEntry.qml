import QtQuick
import Leafund

// An input of one line. A message of the screen, which is red and bold, may take several.
EntryBox {
    id: entry

    input: field

    TextInput {
        id: field
        // The first characters of a password over a message, before they are committed.
        readonly property bool composing: entry.view.secure && preeditText !== ""

        objectName: entry.view.name
        width: parent.width
        activeFocusOnTab: true
        clip: true
        // Left, it shows its beginning.
        autoScroll: activeFocus
        onActiveFocusChanged: if (!activeFocus) ensureVisible(0)
        activeFocusOnPress: false
        color: entry.view.textColor
        font { pointSize: Theme.lead; weight: entry.view.coloured ? Font.Bold : Font.Normal }
        echoMode: entry.view.masked || composing ? TextInput.Password : TextInput.Normal
        inputMethodHints: entry.view.inputHints
        wrapMode: entry.view.coloured ? TextInput.Wrap : TextInput.NoWrap
        maximumLength: 0x7fffffff
        selectByMouse: true
        selectionColor: Theme.accentDeep
        selectedTextColor: Theme.accentInk

        // The toolkit writes, and not the user.
        property bool rewriting: false
        // Not bound: an old text is told to assistive technology in clear when a new one is set over
        // it, and a password must not be.
        function write(written) {
            if (text === written)
                return;
            rewriting = true;
            if (entry.view.secure)
                remove(0, length);
            text = written;
            rewriting = false;
        }
        // A line break comes in by pasting.
        function takeOneLine() {
            const before = text.slice(0, cursorPosition).replace(/[\r\n]+/g, "");
            write(text.replace(/[\r\n]+/g, ""));
            cursorPosition = Math.min(before.length, length);
        }
        Component.onCompleted: write(entry.view.text)
        Connections {
            target: entry.view
            function onChanged() { field.write(entry.view.text); }
        }

        onTextEdited: {
            if (rewriting)
                return;
            if (/[\r\n]/.test(text))
                takeOneLine();
            entry.view.edit(text);
        }
        onAccepted: entry.view.pressReturn()

        Accessible.role: Accessible.EditableText
        Accessible.name: entry.view.accessibleName
        Accessible.description: entry.accessibleReason
        // Not Accessible.passwordEdit: it takes the name away, and the role follows the echo mode.
    }
}
