import QtQuick
import Leafund

// An input of many lines, as high as its text.
EntryBox {
    id: area

    required property TextViewBridge view

    bridge: view
    input: editor
    empty: !editor.text && !editor.preeditText
    onMessageSelected: editor.selectAll()

    FontMetrics {
        id: metrics
        font: editor.font
    }

    TextEdit {
        id: editor
        objectName: area.view.name
        width: parent.width
        height: Math.max(implicitHeight, 3 * metrics.lineSpacing)
        activeFocusOnTab: true
        activeFocusOnPress: false
        text: area.view.text
        textFormat: TextEdit.PlainText
        horizontalAlignment: Desktop.mirrored ? TextEdit.AlignLeft : undefined
        wrapMode: TextEdit.Wrap
        color: area.view.coloured ? area.view.textColor : Theme.black
        font { pointSize: Theme.lead; weight: area.view.coloured ? Font.Bold : Font.Normal }
        inputMethodHints: area.view.inputHints | Qt.ImhMultiLine
        // A finger that is drawn over it scrolls the form, as long as nothing is to be selected.
        selectByMouse: pointer.hovered
        selectionColor: Theme.button
        selectedTextColor: Theme.buttonInk

        HoverHandler {
            id: pointer
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        }

        // What the toolkit wrote comes back equal and is no edit. A no-break space arrives as a plain
        // one: the editor gives out its text no other way.
        onTextChanged: if (text !== area.view.text) area.view.edit(text)

        // Tab leads on, as everywhere.
        Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
        Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

        Accessible.role: Accessible.EditableText
        Accessible.name: area.view.accessibleName
        Accessible.description: area.accessibleReason
        Accessible.multiLine: true
    }
}
