#pragma once

#include <vector>

#include "tests/look/WindowItems.h"

namespace leafund {

// Logical pixels. 48 by 48 is about 9 mm on a phone, the width of a fingertip.
inline constexpr double kLeastTarget = 48;

// Controls that a finger would miss, at the present scroll position: too small in sight, or lying
// on one another.
std::vector<Fault> targetFaults(const std::vector<QQuickItem*>& shown);

// What is wider than the window or cut off below it, and panes that cannot be scrolled to their
// last item. Scrolls.
std::vector<Fault> frameFaults(QQuickWindow& window, const std::vector<QQuickItem*>& shown);

}  // namespace leafund
