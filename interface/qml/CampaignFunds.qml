import QtQuick
import Leafund

// How far a campaign has come, as one picture: the bar with both sums, or a small celebration once
// the goal is reached and bar and sums are gone.
Rectangle {
    id: funds

    required property var views
    readonly property bool reached: !views.slider.visible

    implicitHeight: column.implicitHeight + 2 * Theme.gap
    radius: Theme.radius
    color: reached ? Theme.accentPale : Theme.card

    Column {
        id: column
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.gap }
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
        Flow {
            width: parent.width
            spacing: Theme.half
            visible: funds.views.currentFund.visible || funds.views.desiredFund.visible
            // A sum wider than the card goes on in the next line.
            Words {
                id: raised
                view: funds.views.currentFund
                width: Math.min(implicitWidth, parent.width)
                wrapMode: Text.WrapAnywhere
                color: Theme.accentDeep
                font { pointSize: Theme.lead; weight: Font.Bold }
            }
            Words {
                view: funds.views.ofGoal
                height: raised.height
                verticalAlignment: Text.AlignVCenter
                color: Theme.quiet
            }
            Words {
                view: funds.views.desiredFund
                width: Math.min(implicitWidth, parent.width)
                height: Math.max(raised.height, implicitHeight)
                wrapMode: Text.WrapAnywhere
                verticalAlignment: Text.AlignVCenter
                font.weight: Font.DemiBold
            }
        }
    }
}
