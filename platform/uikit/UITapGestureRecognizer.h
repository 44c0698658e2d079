#pragma once

#include <functional>
#include <string>
#include <utility>

namespace leafund {

// Recognises a tap anywhere in the view it is added to that no control takes for itself.
class UITapGestureRecognizer {
 public:
  // `action` is the label of the wiring; `handler` must not own the target.
  UITapGestureRecognizer(std::string action, std::function<void()> handler)
      : action_(std::move(action)), handler_(std::move(handler)) {}

  const std::string& action() const { return action_; }
  void recognize() const { handler_(); }

 private:
  std::string action_;
  std::function<void()> handler_;
};

}  // namespace leafund
