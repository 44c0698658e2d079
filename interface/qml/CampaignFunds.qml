import QtQuick
import Leafund

// How far a campaign has come: the bar with both sums, or a small celebration once the goal is
// reached and bar and sums are gone.
Column {
    id: funds

    required property LabelBridge heading
    required property ProgressBridge bar
    required property LabelBridge raised
    required property LabelBridge goal
    required property bool slides
    readonly property bool reached: !bar.visible

    spacing: Theme.unit

    Celebration {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: funds.reached
        slides: funds.slides
        width: Theme.mark * 1.5
        height: Theme.mark
    }
    Words {
        view: funds.heading
        width: parent.width
        horizontalAlignment: funds.reached ? Text.AlignHCenter : Text.AlignLeft
        color: funds.reached ? Theme.accentDeep : Theme.quiet
        font {
            pointSize: funds.reached ? Theme.display : Theme.body
            weight: funds.reached ? Font.Bold : Font.Normal
        }
    }
    ProgressBar {
        view: funds.bar
        width: parent.width
    }
    // Raised on the left, the goal behind its word at the end of the bar, or below where they are
    // too wide. A sum wider than the card goes on in the next line.
    Item {
        id: sums
        readonly property real blank: Theme.half * WindowClass.growth
        readonly property bool stacked: raised.width + word.width + goal.width + 2 * Theme.unit > width
        width: parent.width
        height: stacked ? goal.y + goal.height : raised.height
        visible: funds.raised.visible || funds.goal.visible
        Words {
            id: raised
            view: funds.raised
            anchors.left: parent.left
            width: Math.min(implicitWidth, parent.width)
            wrapMode: Text.WrapAnywhere
            color: Theme.accentDeep
            font { pointSize: Theme.lead; weight: Font.Bold }
        }
        // A reader hears it with the sum.
        Text {
            id: word
            anchors { right: goal.left; rightMargin: sums.blank; baseline: goal.baseline }
            visible: goal.visible
            text: funds.goal.accessibleName
            textFormat: Text.PlainText
            color: Theme.quiet
            font.pointSize: Theme.body
            Accessible.ignored: true
        }
        Words {
            id: goal
            view: funds.goal
            anchors.right: parent.right
            y: sums.stacked ? raised.height : raised.baselineOffset - baselineOffset
            width: Math.min(implicitWidth, parent.width - word.width - sums.blank)
            wrapMode: Text.WrapAnywhere
            horizontalAlignment: Text.AlignRight
            font.weight: Font.DemiBold
        }
    }
}
