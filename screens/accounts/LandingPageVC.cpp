#include "screens/accounts/LandingPageVC.h"

#include "model/Catalogue.h"
#include "platform/foundation/Diagnostics.h"
#include "screens/InputMessage.h"

namespace leafund {

void LandingPageVC::viewDidLoad() {
  // First, so that the updates stand before anything of the screen is set up.
  writeSeedUpdates();
  UIViewController::viewDidLoad();
}

void LandingPageVC::signInClicked(const Sender&) {
  const std::string emailText = userEmail->text();
  const std::string passwordText = password->text();
  writeDiagnosticLine(emailText);
  if (!emailText.empty() && !passwordText.empty()) {
    performSegueWithIdentifierSender("signInSegue", shared(this));
    return;
  }
  // The sign-up form's message for a name, on purpose: the e-mail has none of its own. A message is
  // the input's text from then on, so a second press signs in with it.
  if (emailText.empty()) showMessage(*userEmail.get(), "Error: Please Enter a Name");
  if (passwordText.empty()) showMessage(*password.get(), "Error: Please Enter a Password");
}

void LandingPageVC::signUpClicked(const Sender&) {
  performSegueWithIdentifierSender("signUpSegue", shared(this));
}

void LandingPageVC::fixThingAction(const Sender&) {
  userEmail->setText("");
  userEmail->setTextColor(UIColor::blackColor());
}

void LandingPageVC::fixOtherThingAction(const Sender&) {
  password->setText("");
  password->setTextColor(UIColor::blackColor());
}

}  // namespace leafund
