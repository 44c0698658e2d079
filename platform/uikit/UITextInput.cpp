#include "platform/uikit/UITextInput.h"

#include <utility>

#include "platform/uikit/UIApplication.h"

namespace leafund {

void UITextInput::setText(std::string text) {
  text_ = std::move(text);
  writtenByScreen_ = true;
  changed();
}

void UITextInput::setTextColor(const UIColor& color) {
  textColor_ = color;
  changed();
}

void UITextInput::editByUser(std::string text) {
  text_ = std::move(text);
  writtenByScreen_ = false;
  changed();
}

void UITextInput::becomeFirstResponder() {
  editing_ = true;
  changed();
  sendActionsForControlEvents(UIControlEvent::EditingDidBegin);
}

void UITextInput::resignFirstResponder() {
  if (!editing_) return;
  editing_ = false;
  if (auto* application = UIApplication::current()) application->noteEditingEnded();
  changed();
}

void UITextView::scrollRangeToVisible(NSRange range) {
  if (range.location != 0) return;
  ++scrollsToTop_;
  changed();
}

}  // namespace leafund
