#pragma once

#include <vector>

#include "tests/look/WindowItems.h"

namespace leafund {

// Everything wrong with what is shown below an item, at every scroll position of its panes.
std::vector<Fault> faultsOf(QQuickWindow& window, QQuickItem& root);

// And what is wrong only while the user does something to it.
std::vector<Fault> faultsInUse(QQuickWindow& window, QQuickItem& root);

}  // namespace leafund
