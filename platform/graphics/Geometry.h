#pragma once

namespace leafund {

// All in points: a screen's scale says how many pixels a point has.
struct CGPoint {
  double x = 0, y = 0;
  bool operator==(const CGPoint&) const = default;
};

struct CGSize {
  double width = 0, height = 0;
  bool operator==(const CGSize&) const = default;
};

struct CGRect {
  double x = 0, y = 0, width = 0, height = 0;
  bool operator==(const CGRect&) const = default;
  double bottom() const { return y + height; }
};

}  // namespace leafund
