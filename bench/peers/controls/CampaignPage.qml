import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Peer

Page {
    id: page

    required property int row
    required property string campaignTitle
    required property string creator
    required property string about
    required property url photo
    required property real raised
    required property real goal

    header: BackBar { title: "Campaign"; stack: page.StackView.view }

    function fund() {
        error.text = CampaignModel.complaint(row, amount.text);
        if (!error.text)
            StackView.view.push("ConfirmPage.qml", { row: row, amount: amount.text });
    }

    ScrollView {
        id: scroll
        anchors.fill: parent
        contentWidth: availableWidth

        ColumnLayout {
            x: 16
            width: scroll.availableWidth - 32
            spacing: 16

            Image {
                Layout.alignment: Qt.AlignHCenter
                Layout.topMargin: 24
                Layout.preferredWidth: 130
                Layout.preferredHeight: 130
                source: page.photo
                sourceSize: Qt.size(130, 130)
                fillMode: Image.PreserveAspectCrop
                Accessible.name: "Picture of the campaign"
            }
            Label {
                Layout.fillWidth: true
                text: page.campaignTitle
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                font { pointSize: 24; bold: true }
            }
            Label {
                Layout.fillWidth: true
                text: "by " + page.creator
                textFormat: Text.PlainText
                horizontalAlignment: Text.AlignHCenter
                color: palette.placeholderText
            }
            Label { text: "Raised so far"; color: palette.placeholderText }
            ProgressBar {
                Layout.fillWidth: true
                value: page.raised / page.goal
            }
            RowLayout {
                Label {
                    Layout.fillWidth: true
                    text: "$" + page.raised.toFixed(2)
                    font { pointSize: 15; bold: true }
                }
                Label { text: "$" + page.goal.toFixed(2) }
            }
            TextField {
                id: amount
                Layout.fillWidth: true
                Layout.preferredHeight: 52
                placeholderText: "Amount in dollars"
                inputMethodHints: Qt.ImhFormattedNumbersOnly
            }
            Label {
                id: error
                Layout.fillWidth: true
                visible: text
                wrapMode: Text.Wrap
                color: "#b3201b"
            }
            WideButton {
                text: "Fund this campaign"
                highlighted: true
                onClicked: page.fund()
            }
            Label {
                Layout.alignment: Qt.AlignHCenter
                text: "About this campaign"
                font { pointSize: 15; bold: true }
            }
            Label {
                Layout.fillWidth: true
                Layout.bottomMargin: 16
                padding: 16
                text: page.about
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                lineHeight: 1.35
                background: Rectangle { border.color: "#000000" }
            }
        }
    }
}
