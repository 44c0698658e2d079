#pragma once

#include <vector>

#include "tests/look/WindowItems.h"

namespace leafund {

// What WCAG 2.1 asks for at level AA (1.4.3): 3 for a text from 24 px, or from 19 px in bold, and
// 4.5 for any smaller one. In logical pixels, so that the scale of a screen does not count.
double leastContrast(double pixels, bool bold);

// Texts too pale for their ground, and texts of which nothing is seen where they should stand, at
// the present scroll position. Measured on what is drawn, once with the words and once without.
std::vector<Fault> contrastFaults(QQuickWindow& window, const std::vector<QQuickItem*>& shown);

// The same with the text of every input selected.
std::vector<Fault> selectedContrastFaults(QQuickWindow& window,
                                          const std::vector<QQuickItem*>& shown);

// The same while each control is held down by the pointer, for the words on it; and controls that
// do not take a press in their middle.
std::vector<Fault> heldContrastFaults(QQuickWindow& window, const std::vector<QQuickItem*>& shown);

}  // namespace leafund
