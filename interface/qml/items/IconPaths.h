#pragma once

#include <QPainterPath>

#include "interface/qml/items/IconItem.h"

namespace leafund {

// The parts of an icon, on the grid of 24 by 24: those that are filled, odd and even, and those
// that are drawn with a stroke 2 wide.
struct IconPaths {
  QPainterPath filled;
  QPainterPath stroked;
};

// Made from the drawings in interface/icons.
IconPaths pathsOf(IconItem::Icon which);

}  // namespace leafund
