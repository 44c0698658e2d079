import QtQuick
import Leafund

// Words that the user reads.
Text {
    id: words

    required property TextBridge view
    property bool heading: false
    // Of a screen without a bar: the focus is here when it comes.
    property bool takesFocus: false

    objectName: view.name
    visible: view.visible
    text: view.text
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    // By the direction of its words, and on a mirrored page where its lines begin.
    horizontalAlignment: Desktop.mirrored ? Text.AlignLeft : undefined
    color: Theme.ink
    font.pointSize: Theme.body
    lineHeight: 1.2

    focus: takesFocus

    Accessible.role: heading ? Accessible.Heading : Accessible.StaticText
    Accessible.name: view.spokenText
    Accessible.ignored: text === ""
}
