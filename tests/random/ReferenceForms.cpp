#include <cmath>
#include <utility>

#include "tests/random/ReferenceApp.h"
#include "tests/random/ReferenceRules.h"

// What the buttons of the forms do: check the inputs, mark what is refused, and lead on.
namespace leafund::random {

namespace {

void mark(View& input, const char* message) {
  input.text = message;
  input.byScreen = true;
  input.ink = Ink::Red;
}

}  // namespace

void ReferenceApp::signIn(Screen& screen) {
  View& email = screen.at("userEmail");
  View& password = screen.at("password");
  print(email.text);
  if (!email.text.empty() && !password.text.empty()) return push(make(Scene::Home));
  if (email.text.empty()) mark(email, "Error: Please Enter a Name");
  if (password.text.empty()) mark(password, "Error: Please Enter a Password");
}

void ReferenceApp::signUp(Screen& screen) {
  View& name = screen.at("nameField");
  View& password = screen.at("passwordField");
  View& again = screen.at("passwordConfirmField");
  print(name.text);
  const bool filled = !name.text.empty() && !password.text.empty() && !again.text.empty();
  const bool same = sameToAReader(password.text, again.text);
  const bool typed = twist_ != Twist::MessageIsNotTyped || !name.showsMessage();
  if (filled && same && typed) {
    userName_ = name.text;
    return push(make(Scene::Home));
  }
  if (name.text.empty()) mark(name, "Error: Please Enter a Name");
  if (password.text.empty()) mark(password, "Error: Please Enter a Password");
  if (again.text.empty()) {
    mark(again, "Error: Please Re-enter Password");
  } else if (!same) {
    mark(again, "Error: Passwords Do Not Match");
  }
}

void ReferenceApp::fund(Screen& screen) {
  View& error = screen.at("errorLabel");
  const auto amount = spelledAmount(screen.at("dollarAmountField").text);
  if (!amount) {
    error.hidden = false;
    return;
  }
  screen.amount = *amount;
  const float remaining = screen.pledge->goal - screen.pledge->raised;
  const bool refusedForNan = twist_ == Twist::NanIsRefused && std::isnan(*amount);
  if (*amount > remaining || refusedForNan) {
    error.text = "Error: Donation Exceeds Maximum";
    error.hidden = false;
    return;
  }
  const auto confirm = make(Scene::Confirm);
  confirm->amount = screen.amount;
  confirm->position = screen.position;
  push(confirm);
}

void ReferenceApp::book(Screen& screen) {
  Pledge& pledge = *screen.pledge;
  const float sum = pledge.raised + screen.amount;
  const bool capped = twist_ != Twist::PledgeWithoutCap && !(sum < pledge.goal);
  if (twist_ != Twist::PledgeIsLost) pledge.raised = capped ? pledge.goal : sum;
  entry(others_, screen.position, screen);
  others_.erase(others_.begin() + static_cast<std::ptrdiff_t>(screen.position));
  funded_.push_front(screen.pledge);
  const auto thanks = make(Scene::Thanks);
  thanks->cameFrom = "ConfirmPageVC";
  push(thanks);
}

void ReferenceApp::create(Screen& screen) {
  const auto goal = spelledAmount(screen.at("desiredFunding").text);
  static constexpr std::pair<const char*, const char*> kNeeded[] = {
      {"nameOfCreator", "Error: Please Enter a Name"},
      {"nameOfCampaign", "Error: Please Enter a Campaign Name"},
      {"shortDescription", "Error: Please Enter a Description"},
      {"fullDescription", "Error: Please Enter a Description"},
      {"imageURL", "Error: Please Enter a URL"}};
  bool complete = goal.has_value();
  for (const auto& [name, message] : kNeeded) complete = complete && !screen.at(name).text.empty();
  if (!complete) {
    for (const auto& [name, message] : kNeeded) {
      if (screen.at(name).text.empty()) mark(screen.at(name), message);
    }
    if (!goal) screen.at("moneyErrorField").hidden = false;
    return;
  }
  own().push_front(std::make_shared<Pledge>(Pledge{.title = screen.at("nameOfCampaign").text,
                                                   .creator = screen.at("nameOfCreator").text,
                                                   .goal = *goal,
                                                   .raised = 0,
                                                   .description = screen.at("fullDescription").text,
                                                   .photo = screen.at("imageURL").text,
                                                   .pitch = screen.at("shortDescription").text,
                                                   .day = 4,
                                                   .month = "Dec"}));
  const auto thanks = make(Scene::Thanks);
  thanks->cameFrom = "NewCampaignVC";
  push(thanks);
}

}  // namespace leafund::random
