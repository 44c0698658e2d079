#include "platform/uikit/UIProgressView.h"

#include <algorithm>
#include <cmath>

namespace leafund {

float UIProgressView::shownProgress() const {
  return std::isnan(progress_) ? 0.0F : std::clamp(progress_, 0.0F, 1.0F);
}

void UIProgressView::setProgressAnimated(float progress, bool animated) {
  const float before = shownProgress();
  progress_ = progress;
  animatedFrom_ = animated ? before : shownProgress();
  changed();
}

}  // namespace leafund
