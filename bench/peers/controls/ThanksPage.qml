import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts

Page {
    id: page

    ColumnLayout {
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: 16 }
        spacing: 24
        Label {
            Layout.fillWidth: true
            text: "Thank you for your pledge!"
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            font { pointSize: 24; bold: true }
        }
        WideButton {
            text: "Home"
            highlighted: true
            // Home is the list, above the landing page.
            onClicked: page.StackView.view.pop(page.StackView.view.get(1))
        }
    }
}
