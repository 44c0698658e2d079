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
        Keys.forwardTo: children
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
        Accessible.name: view.accessibleName

        Rectangle {
            width: parent.width
            height: Theme.hairline
            color: Theme.line
        }

        FontMetrics {
            id: line
            font.pointSize: Theme.lead
        }

        Row {
            id: tabs
            readonly property real room: Math.min(Theme.column, bar.width)
            // Tabs are equally wide, and on a narrow bar as wide as their titles need: in the accent
            // colour a title must not become small.
            readonly property bool crowded: room < Theme.narrow
            readonly property real words: browse.wordsWidth + funded.wordsWidth
                                          + mine.wordsWidth + news.wordsWidth
            function widthFor(tab) {
                return crowded ? room * tab.wordsWidth / words : room / 4;
            }
            // All titles in one size: the largest that fits every tab, and the bar.
            readonly property real share: Math.min(1, Theme.tabLine / line.height, browse.fit,
                                                   funded.fit, mine.fit, news.fit)

            anchors.horizontalCenter: parent.horizontalCenter
            height: parent.height

            TabButton {
                id: browse
                view: page.views.browseTab
                share: tabs.share
                icon: IconItem.Search
                tint: bar.view.tintColor
                width: tabs.widthFor(browse)
                height: parent.height
            }
            TabButton {
                id: funded
                view: page.views.fundedTab
                share: tabs.share
                icon: IconItem.Heart
                tint: bar.view.tintColor
                width: tabs.widthFor(funded)
                height: parent.height
            }
            TabButton {
                id: mine
                view: page.views.mineTab
                share: tabs.share
                icon: IconItem.Sprout
                tint: bar.view.tintColor
                width: tabs.widthFor(mine)
                height: parent.height
            }
            TabButton {
                id: news
                view: page.views.newsTab
                share: tabs.share
                icon: IconItem.Paper
                tint: bar.view.tintColor
                width: tabs.widthFor(news)
                height: parent.height
            }
        }
    }
}
