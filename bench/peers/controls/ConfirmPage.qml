import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Peer

Page {
    id: page

    required property int row
    required property string amount

    header: BackBar { title: "Confirm your pledge" }

    function confirm() {
        const stack = StackView.view;
        CampaignModel.pledge(row, amount);
        stack.push("ThanksPage.qml");
    }

    Pane {
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: 16 }
        padding: 24
        background: Rectangle { radius: 12; border.color: "#dde6d5" }

        ColumnLayout {
            anchors { left: parent.left; right: parent.right }
            spacing: 16
            Label {
                Layout.fillWidth: true
                text: "Do you want to fund this campaign?"
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                font { pointSize: 24; bold: true }
            }
            Label {
                Layout.fillWidth: true
                text: "Your pledge counts at once, and you find the campaign under Funded."
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                color: palette.placeholderText
            }
            WideButton {
                text: "Yes"
                highlighted: true
                onClicked: page.confirm()
            }
            WideButton {
                text: "No"
                onClicked: page.StackView.view.pop()
            }
        }
    }
}
