import QtQuick
import Leafund

// What a screen is about, in the largest type in which its longest word fits into one line, and a
// long title in less.
Words {
    id: title

    // How many characters are many.
    readonly property int longTitle: 48
    property real largest: Theme.display
    readonly property string longestWord: view.text.split(/[\s-]+/).reduce(
        (longest, word) => word.length > longest.length ? word : longest, "")
    readonly property real share: Math.min(1, (width - Theme.half) / Math.max(1, word.advanceWidth))

    heading: true
    font {
        pointSize: view.text.length > longTitle
                   ? Theme.lead : Math.max(Theme.lead, Math.floor(largest * share))
        weight: Font.Bold
    }

    TextMetrics {
        id: word
        text: title.longestWord
        font { pointSize: title.largest; weight: Font.Bold }
    }
}
