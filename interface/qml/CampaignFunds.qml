import QtQuick
import Leafund

// How far a campaign has come: the bar with both sums, or a small celebration once the goal is
// reached and bar and sums are gone.
Column {
    id: funds

    required property var views
    readonly property bool reached: !views.slider.visible

    spacing: Theme.unit

    Celebration {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: funds.reached
        width: Theme.mark * 1.5
        height: Theme.mark
    }
    Words {
        view: funds.views.labelAboveSlider
        width: parent.width
        horizontalAlignment: funds.reached ? Text.AlignHCenter : Text.AlignLeft
        color: funds.reached ? Theme.accentDeep : Theme.quiet
        font {
            pointSize: funds.reached ? Theme.display : Theme.body
            weight: funds.reached ? Font.Bold : Font.Normal
        }
    }
    ProgressBar {
        view: funds.views.slider
        width: parent.width
    }
    // Raised on the left, the goal behind its flag at the end of the bar, or below where they are
    // too wide. A sum wider than the card goes on in the next line.
    Item {
        readonly property bool stacked: raised.width + flag.width + goal.width + 2 * Theme.unit > width
        width: parent.width
        height: stacked ? goal.y + goal.height : raised.height
        visible: funds.views.currentFund.visible || funds.views.desiredFund.visible
        Words {
            id: raised
            view: funds.views.currentFund
            width: Math.min(implicitWidth, parent.width)
            wrapMode: Text.WrapAnywhere
            color: Theme.accentDeep
            font { pointSize: Theme.lead; weight: Font.Bold }
        }
        IconItem {
            id: flag
            anchors { right: goal.left; rightMargin: Theme.half }
            y: goal.y + (goal.height / Math.max(1, goal.lineCount) - height) / 2
            width: Theme.gap
            height: Theme.gap
            icon: IconItem.Flag
            color: Theme.accent
        }
        Words {
            id: goal
            view: funds.views.desiredFund
            anchors.right: parent.right
            y: parent.stacked ? raised.height : (raised.height - height) / 2
            width: Math.min(implicitWidth, parent.width - flag.width - Theme.half)
            wrapMode: Text.WrapAnywhere
            horizontalAlignment: Text.AlignRight
            font.weight: Font.DemiBold
        }
    }
}
