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

    panes: [navigationBar, inner, frame]
    // How wide the tabs are that stand at the side; 0 where they stand at the foot.
    readonly property real rail: tabBar.width < tabs.width ? tabBar.width : 0

    columnStart: rail + columnEnd
    columnEnd: Math.max(Theme.gap, Math.floor((tabs.width - rail - Theme.feed) / 2))

    barContent: Button {
        view: page.newButton
        fontSize: Theme.lead * page.navigationBar.share
        primary: false
        height: Theme.leastTarget
    }

    // The selected tab's screen is put here.
    Item {
        id: inner
        objectName: page.tabs.name
        anchors.right: parent.right
        width: page.tabs.width - page.rail
        height: page.tabs.height
        clip: true
        Keys.forwardTo: children

        readonly property Item selected: frame.entry
        onSelectedChanged: fade.restart()
        Fade {
            id: fade
            target: inner
            property: "opacity"
            from: 0
            to: 1
            longest: Theme.tabDuration
        }
    }

    // A bar at the foot or, where the window is wide, a rail at the side, from its top to its foot.
    Rectangle {
        id: frame
        readonly property bool rail: page.rail > 0
        readonly property Item entry: browse.view.selected ? browse : funded.view.selected ? funded
                                      : mine.view.selected ? mine : news
        objectName: page.tabBar.name
        anchors.left: parent.left
        y: page.tabBar.y
        width: page.tabBar.width
        height: page.tabBar.height
        color: Theme.card

        Accessible.role: Accessible.PageTabList
        Accessible.name: page.tabBar.accessibleName

        // Between the tabs and the screen.
        Rectangle {
            anchors { top: parent.top; right: parent.right }
            width: frame.rail ? Theme.hairline : parent.width
            height: frame.rail ? parent.height : Theme.hairline
            color: Theme.outline
        }

        FontMetrics {
            id: line
            font.pointSize: Theme.lead
        }

        Grid {
            id: row
            // Below this width four titles do not fit beside one another in equal parts.
            readonly property real narrow: 320
            readonly property real room: Math.min(Theme.column, page.tabBar.width)
            // Tabs are equally wide, and on a narrow bar as wide as their titles need: in the accent
            // colour a title must not become small.
            readonly property bool crowded: room < narrow
            readonly property real words: browse.wordsWidth + funded.wordsWidth
                                          + mine.wordsWidth + news.wordsWidth
            function widthFor(tab: TabButton): real {
                return frame.rail ? frame.width : crowded ? room * tab.wordsWidth / words : room / 4;
            }
            // All titles in one size: the largest that fits every tab. With the system's text they grow
            // in a rail, which grows with them, and not in a bar.
            readonly property real tabRoom: frame.rail ? frame.height / 4 : frame.height
            readonly property real grown: frame.rail ? WindowClass.growth : 1
            readonly property real share: Math.min(grown / WindowClass.textScale,
                                                   (tabRoom - browse.signHeight) / line.height,
                                                   browse.fit, funded.fit, mine.fit, news.fit)
            readonly property real tabHeight: frame.rail ? Math.min(tabRoom, browse.comfortable) : tabRoom

            columns: frame.rail ? 1 : children.length
            anchors.horizontalCenter: parent.horizontalCenter
            // In a rail they begin below the height of the navigation bar, where there is room.
            y: frame.rail ? Math.min(page.root.y, frame.height - 4 * tabHeight) : 0

            // From tab to tab as they stand. With Alt they lead back, as everywhere.
            Keys.onPressed: event => {
                const tabs = [browse, funded, mine, news];
                const at = tabs.findIndex(tab => tab.activeFocus);
                const ahead = frame.rail ? Qt.Key_Down : Desktop.mirrored ? Qt.Key_Left : Qt.Key_Right;
                const back = frame.rail ? Qt.Key_Up : Desktop.mirrored ? Qt.Key_Right : Qt.Key_Left;
                event.accepted = [ahead, back].includes(event.key) && !(event.modifiers & Qt.AltModifier);
                if (event.accepted)
                    tabs[at + (event.key === ahead ? 1 : -1)]?.forceActiveFocus(Qt.TabFocusReason);
            }

            TabButton {
                id: browse
                view: page.browseTab
                share: row.share
                icon: browse.view.selected ? IconItem.SearchFilled : IconItem.Search
                tint: page.tabBar.tintColor
                width: row.widthFor(browse)
                height: row.tabHeight
            }
            TabButton {
                id: funded
                view: page.fundedTab
                share: row.share
                icon: funded.view.selected ? IconItem.HeartFilled : IconItem.Heart
                tint: page.tabBar.tintColor
                width: row.widthFor(funded)
                height: row.tabHeight
            }
            TabButton {
                id: mine
                view: page.mineTab
                share: row.share
                icon: mine.view.selected ? IconItem.SproutFilled : IconItem.Sprout
                tint: page.tabBar.tintColor
                width: row.widthFor(mine)
                height: row.tabHeight
            }
            TabButton {
                id: news
                view: page.newsTab
                share: row.share
                icon: news.view.selected ? IconItem.PaperFilled : IconItem.Paper
                tint: page.tabBar.tintColor
                width: row.widthFor(news)
                height: row.tabHeight
            }
        }
    }
}
