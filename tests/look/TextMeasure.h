#pragma once

#include <vector>

#include "tests/look/WindowItems.h"

namespace leafund {

// The longest line that is read without losing the next one: typographers ask for 45 to 75
// characters; some lines of an even text are longer than its mean line.
inline constexpr double kLongestLine = 80;

// What is left of a text that is cut must still say something.
inline constexpr int kFewestLines = 2;

// Texts that cannot be read whole, at the present scroll position: cut off without an ellipsis, out
// of the control they belong to, on one another, or in lines too long to follow.
std::vector<Fault> textFaults(const std::vector<QQuickItem*>& shown);

}  // namespace leafund
