import QtQuick
import Leafund

// One tab of the tab bar.
Pressable {
    id: tab

    required property TabBridge view
    required property int icon
    required property color tint
    // Of the size that a tab's title has at most, and how much of it fits into this tab.
    required property real share
    readonly property real wordsWidth: metrics.advanceWidth
    readonly property real fit: width > 0 ? (width - Theme.unit) / wordsWidth : 1
    readonly property real signHeight: sign.height
    // How high it is where there is room.
    readonly property real comfortable: words.height + 2 * Theme.unit
    readonly property color iconColor: view.selected ? tint : Theme.tabQuiet

    objectName: view.name
    visible: view.visible
    ringOutset: 0  // it stands outside the title

    onPressed: view.tap()

    Accessible.role: Accessible.PageTab
    Accessible.onPressAction: accessiblePressAction()
    Accessible.name: view.text
    Accessible.selectable: true
    Accessible.selected: view.selected

    TextMetrics {
        id: metrics
        text: tab.view.text
        font { pointSize: Theme.lead; weight: Font.Bold }
    }

    Rectangle {
        anchors.fill: parent
        color: tab.held ? Theme.accentPale : tab.shade
    }

    Column {
        id: words
        anchors.centerIn: parent
        width: parent.width

        // The selected tab is told by shape as well: by the field behind its icon, which is filled.
        Rectangle {
            id: sign
            anchors.horizontalCenter: parent.horizontalCenter
            width: 2 * height
            height: Theme.icon + Theme.half
            radius: height / 2
            color: tab.view.selected ? Theme.tabField : Theme.none
            IconItem {
                anchors.centerIn: parent
                width: Theme.icon
                height: Theme.icon
                icon: tab.icon
                color: tab.iconColor
            }
        }
        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: tab.view.text
            textFormat: Text.PlainText
            color: tab.view.selected ? tab.view.selectedTitleColor : Theme.tabQuiet
            font { pointSize: Math.max(1, Theme.lead * tab.share); weight: tab.view.selected ? Font.Bold : Font.Medium }
            Accessible.ignored: true
        }
    }
}
