#pragma once

#include "platform/uikit/UIView.h"

namespace leafund {

class UIProgressView : public UIView {
 public:
  ViewKind kind() const override { return ViewKind::Progress; }
  // As it was given, which may be infinite, negative or not a number.
  float progress() const { return progress_; }
  // What is drawn: from 0 to 1, not-a-number as empty.
  float shownProgress() const;
  // Where the last animated change began, drawn clamped too. Both steps of a change may fall in one
  // turn, before anything is in the window, so the view remembers.
  float animatedFrom() const { return animatedFrom_; }

  void setProgressAnimated(float progress, bool animated);

 private:
  float progress_ = 0;
  float animatedFrom_ = 0;
};

}  // namespace leafund
