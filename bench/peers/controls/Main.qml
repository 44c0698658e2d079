import QtQuick
import QtQuick.Controls.Basic

ApplicationWindow {
    id: window

    width: 390
    height: 844
    visible: true
    title: "Leafund"
    palette {
        window: "#f3f7ef"
        windowText: "#1f2a19"
        text: "#1f2a19"
        button: "#ffffff"
        buttonText: "#36601b"
        // What the Basic style makes its highlighted buttons and its progress of.
        dark: "#53862f"
        brightText: "#ffffff"
        midlight: "#e2eed8"
        placeholderText: "#55624d"
    }

    StackView {
        id: stack
        anchors.fill: parent
        initialItem: SignInPage {
            onSignedIn: stack.push("BrowsePage.qml")
        }
    }
}
