#include "screens/accounts/SignUpVC.h"

#include "model/Catalogue.h"
#include "platform/foundation/Diagnostics.h"
#include "platform/foundation/NSPredicate.h"
#include "platform/foundation/Unicode.h"
#include "screens/InputMessage.h"

namespace leafund {

void SignUpVC::signUpClicked(const Sender&) {
  const std::string name = nameField->text();
  const std::string password = passwordField->text();
  const std::string confirmation = passwordConfirmField->text();
  writeDiagnosticLine(name);
  // "é" typed as one character or as two is the same password.
  const bool agree = canonicallyEquivalent(password, confirmation);
  if (!name.empty() && !password.empty() && !confirmation.empty() && agree) {
    currentUserName() = name;
    performSegueWithIdentifierSender("signUpSecondSegue", shared(this));
    return;
  }
  // The messages become the texts, so the next press reads them as if they had been typed.
  if (name.empty()) showMessage(*nameField.get(), "Error: Please Enter a Name");
  if (password.empty()) showMessage(*passwordField.get(), "Error: Please Enter a Password");
  if (confirmation.empty()) {
    showMessage(*passwordConfirmField.get(), "Error: Please Re-enter Password");
  } else if (!agree) {
    showMessage(*passwordConfirmField.get(), "Error: Passwords Do Not Match");
  }
}

bool SignUpVC::isValidEmail(std::string_view text) const {
  static constexpr std::string_view kEmailPattern =
      R"(^[a-zA-Z0-9.!#$%&'*+/=?^_`{|}~-]+@[a-zA-Z0-9](?:[a-zA-Z0-9-]{0,61}[a-zA-Z0-9])?)"
      R"((?:\.[a-zA-Z0-9](?:[a-zA-Z0-9-]{0,61}[a-zA-Z0-9])?)*$)";
  return NSPredicate::predicateWithFormat("SELF MATCHES %@", kEmailPattern)
      .evaluateWithObject(text);
}

}  // namespace leafund
