#pragma once

#include <functional>
#include <utility>

#include "platform/uikit/UIView.h"

namespace leafund {

// A skin that counts its refreshes and may do something at each. It hangs on its view for its life.
class ProbeSkin final : public Skin {
 public:
  explicit ProbeSkin(std::shared_ptr<UIView> view, std::function<void()> onRefresh = nullptr)
      : view_(std::move(view)), onRefresh_(std::move(onRefresh)) {
    view_->setSkin(this);
  }
  ~ProbeSkin() override { view_->setSkin(nullptr); }
  void refresh() override {
    ++refreshes;
    if (onRefresh_) onRefresh_();
  }
  int refreshes = 0;

 private:
  std::shared_ptr<UIView> view_;
  std::function<void()> onRefresh_;
};

}  // namespace leafund
