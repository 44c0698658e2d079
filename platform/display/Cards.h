#pragma once

#include <cstddef>
#include <vector>

#include "platform/uikit/UIView.h"

namespace leafund {

// A card behind a row's content: where it lies and how it is painted.
struct CardLook {
  CGRect frame;
  CALayer layer;
  bool operator==(const CardLook&) const = default;
};

// The looks of the cards that lie in a view.
class Cards {
 public:
  // Takes in those that were laid into the view, always the same one, since the last call.
  void take(const UIView& view);
  // Undermost first, each look once.
  const std::vector<CardLook>& looks() const { return looks_; }

 private:
  std::vector<CardLook> looks_;
  std::size_t known_ = 0;  // subviews
};

}  // namespace leafund
