#pragma once

#include "platform/uikit/Outlet.h"
#include "platform/uikit/UIButton.h"
#include "platform/uikit/UITextInput.h"

namespace leafund {

// The first screen: signs in whoever fills both inputs. There are no accounts to check against.
class LandingPageVC : public UIViewController {
 public:
  Outlet<UITextField> userEmail{this, "userEmail"};
  Outlet<UITextField> password{this, "password"};
  Outlet<UIButton> signInButton{this, "signInButton"};
  Outlet<UIButton> signUpButton{this, "signUpButton"};

  void viewDidLoad() override;

  void signInClicked(const Sender& sender);
  void signUpClicked(const Sender& sender);
  // Each empties its input and makes it black again: the way back from a message.
  void fixThingAction(const Sender& sender);
  void fixOtherThingAction(const Sender& sender);
};

}  // namespace leafund
