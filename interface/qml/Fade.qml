import QtQuick
import Leafund

// How what comes or goes in its place does so: not at once, and nothing slides.
NumberAnimation {
    readonly property int calm: 100
    duration: Desktop.lessMotion ? Math.min(calm, Theme.fadeDuration) : Theme.fadeDuration
}
