import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts

Page {
    id: page

    signal signedIn

    ColumnLayout {
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: 16 }
        spacing: 16

        Label {
            Layout.fillWidth: true
            text: "Leafund"
            horizontalAlignment: Text.AlignHCenter
            font { pointSize: 24; bold: true }
        }
        Label {
            Layout.fillWidth: true
            text: "Small pledges, green changes."
            horizontalAlignment: Text.AlignHCenter
            color: palette.placeholderText
        }
        TextField {
            id: email
            Layout.fillWidth: true
            Layout.preferredHeight: 52
            placeholderText: "E-mail"
            inputMethodHints: Qt.ImhEmailCharactersOnly
        }
        TextField {
            id: password
            Layout.fillWidth: true
            Layout.preferredHeight: 52
            placeholderText: "Password"
            echoMode: TextInput.Password
        }
        WideButton {
            text: "Sign in"
            highlighted: true
            onClicked: if (email.text && password.text) page.signedIn()
        }
        Label {
            Layout.fillWidth: true
            text: "New to Leafund?"
            horizontalAlignment: Text.AlignHCenter
            color: palette.placeholderText
        }
        WideButton { text: "Create an account" }
    }
}
