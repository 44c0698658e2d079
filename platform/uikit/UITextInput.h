#pragma once

#include <memory>
#include <string>

#include "platform/graphics/UIColor.h"
#include "platform/uikit/UIControl.h"

namespace leafund {

class UITextField;

// What the keyboard in the window should offer. A hint alone: any text can be typed.
enum class UIKeyboardType { Default, EmailAddress, DecimalPad, URL };

class UITextFieldDelegate {
 public:
  virtual ~UITextFieldDelegate() = default;
  // Answers whether the return key does what it does by default.
  virtual bool textFieldShouldReturn(const std::shared_ptr<UITextField>& textField) = 0;
};

// What text fields and text views have in common: a text, never absent, that the user and the
// screen write in turn. Text is UTF-8.
class UITextInput : public UIControl {
 public:
  // What the menu of a text offers: in an input, and of what is read only the second.
  static constexpr const char* kEditLabels[] = {"Cut", "Copy", "Paste", "Select all"};

  const std::string& text() const { return text_; }
  void setText(std::string text);
  UIColor textColor() const { return textColor_; }
  void setTextColor(const UIColor& color);

  // What belongs into the input, shown while it is empty.
  const std::string& placeholder() const { return placeholder_; }
  void setPlaceholder(std::string placeholder) { placeholder_ = std::move(placeholder); }
  UIKeyboardType keyboardType() const { return keyboardType_; }
  void setKeyboardType(UIKeyboardType type) { keyboardType_ = type; }

  // A text that the screen wrote and the user has not touched since.
  bool showsMessage() const { return writtenByScreen_ && !text_.empty(); }
  bool editing() const { return editing_; }
  // Whether the user can write in it.
  virtual bool editable() const { return true; }
  void resignFirstResponder();

 private:
  friend class UIApplication;
  void becomeFirstResponder();
  void editByUser(std::string text);

  std::string text_;
  std::string placeholder_;
  UIColor textColor_ = UIColor::blackColor();
  UIKeyboardType keyboardType_ = UIKeyboardType::Default;
  bool writtenByScreen_ = false;
  bool editing_ = false;
};

// One line.
class UITextField : public UITextInput {
 public:
  ViewKind kind() const override { return ViewKind::TextField; }
  bool secureTextEntry() const { return secureTextEntry_; }
  void setSecureTextEntry(bool secure) { secureTextEntry_ = secure; }
  // Typed characters of a secure field are masked; a message of the screen is read in clear.
  bool masked() const { return secureTextEntry_ && !showsMessage(); }

  std::shared_ptr<UITextFieldDelegate> delegate() const { return delegate_.lock(); }
  void setDelegate(const std::shared_ptr<UITextFieldDelegate>& delegate) { delegate_ = delegate; }

 private:
  bool secureTextEntry_ = false;
  std::weak_ptr<UITextFieldDelegate> delegate_;
};

struct NSRange {
  std::size_t location = 0, length = 0;
};

// Many lines, to read or to write.
class UITextView : public UITextInput {
 public:
  ViewKind kind() const override { return ViewKind::TextView; }
  bool editable() const override { return editable_; }
  void setEditable(bool editable) { editable_ = editable; }
  // A range at the beginning takes a reader back to the top of the text who has scrolled past it.
  // No other range is ever asked for, and none moves anything.
  void scrollRangeToVisible(NSRange range);
  // Only ever grows. A host shows the top when it has changed.
  unsigned scrollsToTop() const { return scrollsToTop_; }

 private:
  bool editable_ = true;
  unsigned scrollsToTop_ = 0;
};

}  // namespace leafund
