#pragma once

#include <string_view>

#include "platform/uikit/Outlet.h"
#include "platform/uikit/UIButton.h"
#include "platform/uikit/UITextInput.h"

namespace leafund {

// The form of a new user: a name, and a password typed twice. Only the name is kept.
class SignUpVC : public UIViewController {
 public:
  Outlet<UITextField> nameField{this, "nameField"};
  Outlet<UITextField> passwordField{this, "passwordField"};
  Outlet<UITextField> passwordConfirmField{this, "passwordConfirmField"};
  Outlet<UIButton> signUpButton{this, "signUpButton"};

  void signUpClicked(const Sender& sender);
  // Whether the whole text has the form of an e-mail address. The form offers it and does not use
  // it: a name is free, and need not be an address.
  bool isValidEmail(std::string_view text) const;
};

}  // namespace leafund
