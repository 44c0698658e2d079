import QtQuick
import Leafund

Page {
    id: page

    required property PlainBridge tabs
    required property TabBarBridge tabBar
    required property TabBridge browseTab
    required property TabBridge fundedTab
    required property TabBridge mineTab
    required property TabBridge newsTab
    required property ButtonBridge newButton

    barContent: Button {
        view: page.newButton
        primary: false
        height: Theme.leastTarget
    }

    // The selected tab's screen is put here.
    Item {
        objectName: page.tabs.name
        x: page.tabs.x
        y: page.tabs.y
        width: page.tabs.width
        height: page.tabs.height
        clip: true
        Keys.forwardTo: children
    }

    Rectangle {
        objectName: page.tabBar.name
        x: page.tabBar.x
        y: page.tabBar.y
        width: page.tabBar.width
        height: page.tabBar.height
        color: Theme.card

        Accessible.role: Accessible.PageTabList
        Accessible.name: page.tabBar.accessibleName

        Rectangle {
            width: parent.width
            height: Theme.hairline
            color: Theme.outline
        }

        FontMetrics {
            id: line
            font.pointSize: Theme.lead
        }

        Row {
            id: row
            // Below this width four titles do not fit beside one another in equal parts.
            readonly property real narrow: 320
            // Titles grow with the system's text up to this height of a line, 120 % of `lead`.
            readonly property real tabLine: 29
            readonly property real room: Math.min(Theme.column, page.tabBar.width)
            // Tabs are equally wide, and on a narrow bar as wide as their titles need: in the accent
            // colour a title must not become small.
            readonly property bool crowded: room < narrow
            readonly property real words: browse.wordsWidth + funded.wordsWidth
                                          + mine.wordsWidth + news.wordsWidth
            function widthFor(tab: TabButton): real {
                return crowded ? room * tab.wordsWidth / words : room / 4;
            }
            // All titles in one size: the largest that fits every tab, and the bar.
            readonly property real share: Math.min(1, tabLine / line.height, browse.fit,
                                                   funded.fit, mine.fit, news.fit)

            anchors.horizontalCenter: parent.horizontalCenter
            height: parent.height

            // With Alt they lead back, as everywhere.
            Keys.onPressed: event => {
                const tabs = [browse, funded, mine, news];
                const at = tabs.findIndex(tab => tab.activeFocus);
                const next = event.key === Qt.Key_Right ? tabs[at + 1]
                           : event.key === Qt.Key_Left ? tabs[at - 1] : undefined;
                event.accepted = next !== undefined && !(event.modifiers & Qt.AltModifier);
                if (event.accepted)
                    next.forceActiveFocus(Qt.TabFocusReason);
            }

            TabButton {
                id: browse
                view: page.browseTab
                share: row.share
                icon: browse.view.selected ? IconItem.SearchFilled : IconItem.Search
                tint: page.tabBar.tintColor
                width: row.widthFor(browse)
                height: parent.height
            }
            TabButton {
                id: funded
                view: page.fundedTab
                share: row.share
                icon: funded.view.selected ? IconItem.HeartFilled : IconItem.Heart
                tint: page.tabBar.tintColor
                width: row.widthFor(funded)
                height: parent.height
            }
            TabButton {
                id: mine
                view: page.mineTab
                share: row.share
                icon: mine.view.selected ? IconItem.SproutFilled : IconItem.Sprout
                tint: page.tabBar.tintColor
                width: row.widthFor(mine)
                height: parent.height
            }
            TabButton {
                id: news
                view: page.newsTab
                share: row.share
                icon: news.view.selected ? IconItem.PaperFilled : IconItem.Paper
                tint: page.tabBar.tintColor
                width: row.widthFor(news)
                height: parent.height
            }
        }
    }
}
