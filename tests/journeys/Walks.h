#pragma once

#include "tests/journeys/Driver.h"

namespace leafund {

// Stretches that many journeys go.
inline void signIn(Driver& app) {
  app.type("userEmail", "wren@example.org");
  app.type("password", "secret");
  app.tap("signInButton");
}

inline void signUp(Driver& app, const std::string& name) {
  app.tap("signUpButton");
  app.type("nameField", name);
  app.type("passwordField", "secret");
  app.type("passwordConfirmField", "secret");
  app.tap("signUpButton");
}

// From the list on the screen, through to being thanked.
inline void pledge(Driver& app, std::ptrdiff_t row, const std::string& amount) {
  app.tapRow(row);
  app.type("dollarAmountField", amount);
  app.tap("FundButton");
  app.tap("yesButton");
}

inline void fillNewCampaign(Driver& app, const std::string& pictureAddress) {
  app.type("nameOfCreator", "Wren");
  app.type("nameOfCampaign", "Rain Barrels");
  app.type("shortDescription", "I'll catch the rain!");
  app.type("fullDescription", "A barrel under every gutter of the street.");
  app.type("desiredFunding", "250");
  app.type("imageURL", pictureAddress);
}

}  // namespace leafund
