import QtQuick

Rectangle {
    color: "#f3f7ef"

    Column {
        anchors.centerIn: parent
        width: 342
        spacing: 16

        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: "Floor"
            font { pointSize: 24; bold: true }
        }
        Rectangle {
            width: parent.width
            height: 60
            TextInput { anchors.fill: parent }
        }
        Rectangle {
            width: parent.width
            height: 60
            TextInput { anchors.fill: parent; echoMode: TextInput.Password }
        }
        Rectangle {
            width: parent.width
            height: 52
            color: "#53862f"
            Text { anchors.centerIn: parent; text: "Sign in"; color: "#ffffff"; font.pointSize: 15 }
            MouseArea { anchors.fill: parent }
        }
        Rectangle {
            width: parent.width
            height: 52
            Text { anchors.centerIn: parent; text: "Create an account"; color: "#36601b"; font.pointSize: 15 }
            MouseArea { anchors.fill: parent }
        }
    }
}
