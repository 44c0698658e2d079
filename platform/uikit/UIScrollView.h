#pragma once

#include "platform/uikit/UIView.h"

namespace leafund {

// A view that shows a part of something larger. While the user scrolls, the host's item owns the
// offset and this view follows it. Whatever else moves the content is a placement: a host moves its
// item only when the number of placements has changed, so that the two never chase one another.
class UIScrollView : public UIView {
 public:
  ViewKind kind() const override { return ViewKind::Scroll; }
  // How far its content is scrolled, in points from its top left.
  CGPoint contentOffset() const { return contentOffset_; }
  // By logic or layout: a placement.
  void setContentOffset(CGPoint offset) {
    if (offset == contentOffset_) return;
    followUser(offset);
    placeAnew();
  }

  // Only ever grows. A user's scroll carries the number that its item last saw.
  unsigned placements() const { return placements_; }
  // The host's item stands there already, so the host is not told.
  void followUser(CGPoint offset) {
    if (offset == contentOffset_) return;
    contentOffset_ = offset;
    setNeedsLayout();
  }
  // The host's item stands where it may not: it is to come back to the offset.
  void placeAnew() {
    ++placements_;
    changed();
  }

 private:
  CGPoint contentOffset_;
  unsigned placements_ = 0;
};

}  // namespace leafund
