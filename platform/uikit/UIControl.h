#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/uikit/UIView.h"

namespace leafund {

enum class UIControlEvent { TouchUpInside, EditingDidBegin };

// A view that tells others what the user did with it.
class UIControl : public UIView {
 public:
  using Handler = std::function<void(const Sender& sender)>;

  // `action` is the label of the wiring, such as "signUpClicked:". The handler must not own the
  // target.
  void addAction(std::string action, UIControlEvent event, Handler handler);
  // Runs the handlers of the event, in the order added, with this control as sender.
  void sendActionsForControlEvents(UIControlEvent event);
  // The labels wired to the event, in order.
  std::vector<std::string> actionsForControlEvent(UIControlEvent event) const;

 private:
  struct Wire {
    std::string action;
    UIControlEvent event;
    Handler handler;
  };
  std::vector<Wire> wires_;
};

}  // namespace leafund
