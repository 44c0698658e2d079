import QtQuick
import Leafund

// One tab of the tab bar.
Pressable {
    id: tab

    required property ViewObject view
    required property int icon
    required property color tint
    readonly property color iconColor: view.selected ? tint : Theme.quiet

    objectName: view.name
    visible: view.visible
    ringOutset: -Theme.half

    onPressed: view.tap()

    Accessible.role: Accessible.PageTab
    Accessible.name: view.text
    Accessible.selectable: true
    Accessible.selected: view.selected

    Column {
        anchors.centerIn: parent
        width: parent.width - Theme.unit

        IconItem {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Theme.icon
            height: Theme.icon
            icon: tab.icon
            color: tab.iconColor
        }
        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: tab.view.text
            textFormat: Text.PlainText
            fontSizeMode: Text.HorizontalFit
            minimumPointSize: Theme.small
            color: tab.view.selected ? tab.view.selectedTitleColor : Theme.quiet
            font { pointSize: Theme.lead; weight: tab.view.selected ? Font.Bold : Font.Medium }
            Accessible.ignored: true
        }
    }
}
