pragma Singleton
import QtQuick

// Every colour, size and duration of the interface. Lengths in points on a grid of 8; text sizes
// in typographic points, so that they follow the font resolution of the system.
QtObject {
    // Body text reaches 4.5:1 on every ground. The accent and the toolkit's red do not: they are
    // for icons, lines and text of the size `lead` in bold.
    readonly property color ground: "#f3f7ef"
    readonly property color card: "#ffffff"
    readonly property color ink: "#1f2a19"
    readonly property color quiet: "#55624d"
    readonly property color line: "#c5d0bc"
    // The edge of a card on the ground, and what lies over a row while it is held.
    readonly property color seam: "#dde6d5"
    readonly property color veil: "#1f53862f"
    readonly property color hillFar: "#e6efdd"
    readonly property color hillNear: "#d9e7cc"
    readonly property color stem: "#a9c592"
    readonly property color accent: "#53862f"
    readonly property color accentDeep: "#36601b"
    readonly property color accentPale: "#e2eed8"
    readonly property color accentInk: "#ffffff"
    readonly property color alert: "#b3201b"
    readonly property color sun: "#f0b73f"
    readonly property color clay: "#dd7a57"
    readonly property color sky: "#7fb3cf"
    readonly property color none: "transparent"

    readonly property real small: 10.5
    readonly property real body: 12
    readonly property real lead: 15
    readonly property real display: 24
    // Where a title is long it is set in `lead` instead of `display`.
    readonly property int longTitle: 48
    readonly property real lines: 1.2
    readonly property real readingLines: 1.35

    readonly property real half: 4
    readonly property real unit: 8
    readonly property real gap: 16
    readonly property real space: 24
    readonly property real wide: 40
    readonly property real radius: 12
    readonly property real hairline: 1
    readonly property real ringWidth: 3
    readonly property real caret: 2

    readonly property real target: 52
    readonly property real leastTarget: 48
    // How high an empty input is where its caption stands in the middle.
    readonly property real restHeight: 64
    readonly property real icon: 24
    // Titles of tabs grow with the system's text up to this height of a line, 120 % of `lead`.
    readonly property real tabLine: 29
    readonly property real mark: 88
    readonly property real meadow: 160
    readonly property real portrait: 130
    readonly property real storyShape: 0.6
    // As the pictures are drawn: nothing of an infographic is cut off.
    readonly property real pictureShape: 0.75
    readonly property real bar: 12
    readonly property real column: 560
    // Below this width four titles of tabs do not fit beside one another in equal parts.
    readonly property real narrow: 320
    readonly property real areaLines: 3
    // A card does not lie in the middle of its row.
    readonly property real cardOffset: 2.5
    readonly property real cardTop: 10
    // What a card leaves to its title and pitch, and how much of the pitch is enough.
    readonly property real cardRoom: 129
    readonly property int pitchLines: 4
    readonly property real peek: 48
    readonly property real step: 80
    readonly property real swipe: 80
    readonly property real scrollMark: 4
    readonly property real celebration: 200

    readonly property int slideDuration: 200
    readonly property int fillDuration: 250
}
