#pragma once

#include <string>
#include <utility>

#include "platform/uikit/UIView.h"

namespace leafund {

// Words the user reads.
class UILabel : public UIView {
 public:
  ViewKind kind() const override { return ViewKind::Label; }
  const std::string& text() const { return text_; }
  void setText(std::string text) {
    text_ = std::move(text);
    changed();
  }

 private:
  std::string text_;
};

}  // namespace leafund
