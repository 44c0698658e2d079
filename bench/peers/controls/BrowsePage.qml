import QtQuick
import QtQuick.Controls.Basic
import Peer

Page {
    id: page

    header: BackBar { title: "Browse" }

    ListView {
        anchors.fill: parent
        model: CampaignModel
        clip: true
        ScrollBar.vertical: ScrollBar {}

        delegate: ItemDelegate {
            id: row

            required property int index
            required property string title
            required property string creator
            required property string pitch
            required property string about
            required property url photo
            required property real raised
            required property real goal

            width: ListView.view.width
            height: 160
            onClicked: page.StackView.view.push("CampaignPage.qml", {
                row: index, campaignTitle: title, creator: creator, about: about,
                photo: photo, raised: raised, goal: goal
            })
            background: Rectangle {
                anchors { fill: parent; topMargin: 10; bottomMargin: 5 }
                color: row.down ? "#e2eed8" : "#ffffff"
            }
            contentItem: Item {
                Image {
                    id: picture
                    x: 4
                    anchors.verticalCenter: parent.verticalCenter
                    width: 64
                    height: 64
                    source: row.photo
                    sourceSize: Qt.size(128, 128)
                    fillMode: Image.PreserveAspectCrop
                }
                Column {
                    anchors { left: picture.right; right: parent.right; leftMargin: 16 }
                    anchors.verticalCenter: parent.verticalCenter
                    spacing: 4
                    Label {
                        width: parent.width
                        text: row.title
                        textFormat: Text.PlainText
                        elide: Text.ElideRight
                        font { pointSize: 15; bold: true }
                    }
                    Label {
                        width: parent.width
                        text: row.pitch
                        textFormat: Text.PlainText
                        wrapMode: Text.Wrap
                        elide: Text.ElideRight
                        maximumLineCount: 4
                        color: palette.placeholderText
                    }
                }
            }
        }
    }
}
