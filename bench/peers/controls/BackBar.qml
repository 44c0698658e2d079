import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts

// The bar on top of a page: its title, and the way back where the page hands over its stack.
ToolBar {
    id: bar

    property string title
    property StackView stack: null
    readonly property bool canGoBack: stack !== null

    height: 56
    background: Rectangle { color: "#ffffff" }

    RowLayout {
        anchors { fill: parent; leftMargin: bar.canGoBack ? 4 : 16 }
        ToolButton {
            visible: bar.canGoBack
            text: "‹"
            font.pointSize: 20
            onClicked: bar.stack.pop()
            Accessible.name: "Back"
        }
        Label {
            Layout.fillWidth: true
            text: bar.title
            elide: Text.ElideRight
            font { pointSize: 15; bold: true }
        }
    }
}
