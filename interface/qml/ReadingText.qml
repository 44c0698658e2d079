import QtQuick
import Leafund

// A long text to read, as high as it is long, framed as its layer says.
Rectangle {
    id: area

    required property TextViewBridge view

    visible: view.visible
    readonly property bool framed: view.borderWidth > 0
    readonly property real head: framed ? Theme.gap : 0
    implicitHeight: words.implicitHeight + head + Theme.gap
    color: framed ? Theme.card : Theme.none
    border { width: view.borderWidth; color: view.drawnAs(view.borderColor, Theme.black, Theme.white) }
    radius: view.cornerRadius

    Connections {
        target: area.view
        function onScrolledToTop() {
            for (let each = area.parent; each; each = each.parent)
                if (each.goBackTo)
                    return each.goBackTo(area);
        }
    }

    Words {
        id: words
        view: area.view
        anchors { fill: parent; margins: Theme.gap; topMargin: area.head }
        lineHeight: 1.35
    }

    // All of it is copied.
    EditOffer {
        area: words
        bridge: area.view
        text: ({ readOnly: true, canPaste: false, activeFocus: true,
                 selectionStart: 0, selectionEnd: area.view.text.length, select: () => {},
                 copy: () => area.view.copy() })
    }
}
