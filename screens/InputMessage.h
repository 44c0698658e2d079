#pragma once

#include <string>

#include "platform/uikit/UITextInput.h"

namespace leafund {

// Marks an input that was refused: the message becomes its text, in red. Nothing but the user, or
// an action of the screen, takes it away again.
inline void showMessage(UITextInput& input, std::string message) {
  input.setText(std::move(message));
  input.setTextColor(UIColor::redColor());
}

}  // namespace leafund
