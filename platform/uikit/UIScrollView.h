#pragma once

#include "platform/uikit/UIView.h"

namespace leafund {

// A view that shows a part of something larger.
class UIScrollView : public UIView {
 public:
  // How far its content is scrolled, in points from its top left.
  CGPoint contentOffset() const { return contentOffset_; }
  void setContentOffset(CGPoint offset) {
    if (offset == contentOffset_) return;
    contentOffset_ = offset;
    setNeedsLayout();
    changed();
  }

 private:
  CGPoint contentOffset_;
};

}  // namespace leafund
