import QtQuick
import Leafund

// How what comes or goes in its place does so: not at once, and nothing slides.
NumberAnimation {
    readonly property int calm: 100
    property int longest: Theme.fadeDuration
    duration: Desktop.lessMotion ? Math.min(calm, longest) : longest
}
