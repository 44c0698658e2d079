import QtQuick
import Leafund

// A button with words on it.
Pressable {
    id: button

    required property ButtonBridge view
    property bool primary: true
    readonly property alias text: label.text
    property real fontSize: Theme.lead

    objectName: view.name
    visible: view.visible
    implicitWidth: label.implicitWidth + 2 * Theme.space
    implicitHeight: Math.max(Theme.target, label.implicitHeight + 2 * Theme.unit)

    onPressed: view.tap()

    Accessible.name: view.text

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: !button.primary ? Theme.card : button.held ? Theme.buttonHeld : Theme.button
        border { width: Theme.hairline; color: Theme.button }

        Rectangle {
            anchors.fill: parent
            radius: Theme.radius
            color: button.primary && button.held ? Theme.none : button.shade
        }
    }

    Text {
        id: label
        anchors { fill: parent; leftMargin: Theme.unit; rightMargin: Theme.unit }
        text: button.view.text
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        fontSizeMode: Text.HorizontalFit
        minimumPointSize: Theme.small * WindowClass.growth / WindowClass.textScale
        color: button.primary ? Theme.buttonInk : Theme.accentDeep
        font { pointSize: button.fontSize; weight: Font.Bold }
        Accessible.ignored: true
    }
}
