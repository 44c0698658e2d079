#pragma once

#include <string>
#include <utility>

#include "platform/uikit/UIControl.h"

namespace leafund {

class UIButton : public UIControl {
 public:
  ViewKind kind() const override { return ViewKind::Button; }
  explicit UIButton(std::string title) : title_(std::move(title)) {}
  const std::string& title() const { return title_; }

 private:
  std::string title_;
};

}  // namespace leafund
