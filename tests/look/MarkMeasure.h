#pragma once

#include <vector>

#include "tests/look/WindowItems.h"

namespace leafund {

// What WCAG 2.1 asks for at level AA of what is no text but tells something (1.4.11).
inline constexpr double kLeastOfMarks = 3;

// Icons of controls and of messages, the edges of inputs against both sides, and how full a
// progress bar is, where they are too pale at the present scroll position. Pictures and what only
// adorns are none of them.
std::vector<Fault> markFaults(QQuickWindow& window, const std::vector<QQuickItem*>& shown);

// Controls in sight of which nobody would see, against both sides of what shows it, that the
// keyboard is there. Moves the focus.
std::vector<Fault> focusFaults(QQuickWindow& window, const std::vector<QQuickItem*>& shown);

}  // namespace leafund
