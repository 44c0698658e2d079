import QtQuick
import Leafund

Page {
    id: page

    barContent: Button {
        view: page.views.newButton
        primary: false
        height: Theme.leastTarget
    }

    // The selected tab's screen is put here.
    Item {
        objectName: page.views.tabs.name
        x: page.views.tabs.x
        y: page.views.tabs.y
        width: page.views.tabs.width
        height: page.views.tabs.height
        clip: true
    }

    Rectangle {
        id: bar
        readonly property ViewObject view: page.views.tabBar

        objectName: view.name
        x: view.x
        y: view.y
        width: view.width
        height: view.height
        color: Theme.card

        Accessible.role: Accessible.PageTabList

        Rectangle {
            width: parent.width
            height: Theme.hairline
            color: Theme.line
        }

        Row {
            id: tabs
            readonly property real tabWidth: Math.min(Theme.column, bar.width) / 4

            anchors.horizontalCenter: parent.horizontalCenter
            height: parent.height

            TabButton {
                view: page.views.browseTab
                icon: IconItem.Search
                tint: bar.view.tintColor
                width: tabs.tabWidth
                height: parent.height
            }
            TabButton {
                view: page.views.fundedTab
                icon: IconItem.Heart
                tint: bar.view.tintColor
                width: tabs.tabWidth
                height: parent.height
            }
            TabButton {
                view: page.views.mineTab
                icon: IconItem.Sprout
                tint: bar.view.tintColor
                width: tabs.tabWidth
                height: parent.height
            }
            TabButton {
                view: page.views.newsTab
                icon: IconItem.Paper
                tint: bar.view.tintColor
                width: tabs.tabWidth
                height: parent.height
            }
        }
    }
}
