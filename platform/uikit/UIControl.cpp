#include "platform/uikit/UIControl.h"

#include <utility>

namespace leafund {

void UIControl::addAction(std::string action, UIControlEvent event, Handler handler) {
  wires_.push_back({std::move(action), event, std::move(handler)});
}

void UIControl::sendActionsForControlEvents(UIControlEvent event) {
  const auto self = shared(this);  // an action may take this control's screen away
  const auto wires = wires_;
  for (const auto& wire : wires) {
    if (wire.event == event) wire.handler(self);
  }
}

std::vector<std::string> UIControl::actionsForControlEvent(UIControlEvent event) const {
  std::vector<std::string> actions;
  for (const auto& wire : wires_) {
    if (wire.event == event) actions.push_back(wire.action);
  }
  return actions;
}

}  // namespace leafund
