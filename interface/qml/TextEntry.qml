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
        text: entry.view.text
        color: entry.view.textColor
        font { pointSize: Theme.lead; weight: entry.view.coloured ? Font.Bold : Font.Normal }
        echoMode: entry.view.masked || composing ? TextInput.Password : TextInput.Normal
        inputMethodHints: entry.view.inputHints
        wrapMode: entry.view.coloured ? TextInput.Wrap : TextInput.NoWrap
        maximumLength: 0x7fffffff
        selectByMouse: true
        selectionColor: Theme.accentDeep
        selectedTextColor: Theme.accentInk

        onTextEdited: entry.view.edit(text)
        onAccepted: entry.view.pressReturn()

        Accessible.role: Accessible.EditableText
        Accessible.name: entry.view.accessibleName
        // Not Accessible.passwordEdit: it takes the name away, and the role follows the echo mode.
    }
}
