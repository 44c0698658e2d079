#include <utility>

#include "tests/random/ReferenceScreen.h"

// What every scene holds, in reading order, with every word.
namespace leafund::random {

namespace {

enum Keyboard { kPlain, kEmail, kDecimal, kAddress };

View label(std::string name, std::string text = {}) {
  return {.kind = ViewKind::Label, .name = std::move(name), .text = std::move(text)};
}

View sum(std::string name, std::string meaning) {
  return {.kind = ViewKind::Label, .name = std::move(name), .spoken = std::move(meaning)};
}

View button(std::string name, std::string title) {
  return {.kind = ViewKind::Button, .name = std::move(name), .text = std::move(title)};
}

View field(std::string name, const std::string& placeholder, Keyboard keyboard = kPlain) {
  return {.kind = ViewKind::Field,
          .name = std::move(name),
          .placeholder = placeholder,
          .spoken = placeholder,
          .keyboard = keyboard};
}

View secret(std::string name, const std::string& placeholder) {
  View view = field(std::move(name), placeholder);
  view.secure = true;
  return view;
}

View formField(std::string name, const std::string& placeholder, Keyboard keyboard = kPlain) {
  View view = field(std::move(name), placeholder, keyboard);
  view.returnEndsEditing = true;
  return view;
}

View area(std::string name, const std::string& placeholder, Keyboard keyboard = kPlain) {
  View view = field(std::move(name), placeholder, keyboard);
  view.kind = ViewKind::Area;
  return view;
}

View readingText(std::string name) {
  return {.kind = ViewKind::Area, .name = std::move(name), .editable = false};
}

View picture(std::string name, std::string description) {
  return {.kind = ViewKind::Picture,
          .name = std::move(name),
          .spoken = std::move(description),
          .fillsByCutting = true};
}

View illustration(std::string name, std::string description) {
  return {.kind = ViewKind::Picture, .name = std::move(name), .spoken = std::move(description)};
}

View tab(std::string name, std::string title) {
  return {.kind = ViewKind::Tab, .name = std::move(name), .text = std::move(title)};
}

View hidden(View view) {
  view.hidden = true;
  return view;
}

std::vector<View> landing() {
  return {label("brand", "Leafund"),
          label("tagline", "Small pledges, green changes."),
          field("userEmail", "E-mail", kEmail),
          secret("password", "Password"),
          button("signInButton", "Sign in"),
          label("newHere", "New to Leafund?"),
          button("signUpButton", "Create an account")};
}

std::vector<View> signUp() {
  return {label("welcome", "Welcome! Under which name shall others see your campaigns?"),
          field("nameField", "Your name"), secret("passwordField", "Password"),
          secret("passwordConfirmField", "Password again"), button("signUpButton", "Sign up")};
}

std::vector<View> home() {
  return {{.kind = ViewKind::Tabs, .name = "tabs"},
          {.kind = ViewKind::TabBar, .name = "tabBar", .spoken = "Sections"},
          tab("browseTab", "Browse"),
          tab("fundedTab", "Funded"),
          tab("mineTab", "Mine"),
          tab("newsTab", "News"),
          hidden(button("newButton", "New"))};
}

std::vector<View> news() {
  return {
      illustration("rideStoryPicture", "A bicycle on a path towards the town"),
      label("rideStoryTitle", "Five miles, twice a day"),
      label("rideStoryText",
            "Tamsin is swapping her car for a bicycle for a whole year, in aid of UNICEF. Every "
            "pledge is another morning on two wheels."),
      illustration("compostStoryPicture", "Fruit peelings on their way into a compost pail"),
      label("compostStoryTitle", "The first peel is in"),
      label("compostStoryText",
            "Lucan's compost heap is under way. Open his campaign among those you funded to read "
            "how the first day went."),
      illustration("pledgeStoryPicture", "A house with solar panels under the sun"),
      label("pledgeStoryTitle", "How a pledge works"),
      label("pledgeStoryText",
            "Pick a campaign, choose an amount and confirm. The campaign moves to your Funded tab "
            "at once, and its creator takes it from there."),
  };
}

std::vector<View> campaign() {
  return {picture("campaignImage", "Picture of the campaign"),
          label("campaignTitle"),
          label("byCreator", "by"),
          label("campaignCreator"),
          label("labelAboveSlider", "Raised so far"),
          {.kind = ViewKind::Progress, .name = "slider", .spoken = "Share of the goal raised"},
          sum("currentFund", "Raised"),
          sum("desiredFund", "Goal"),
          field("dollarAmountField", "Amount in dollars", kDecimal),
          label("errorLabel", "Error: Please Enter an Amount, for Example 25 or 12.50"),
          button("FundButton", "Fund this campaign"),
          button("campaignUpdates", "Read the update"),
          label("about", "About this campaign"),
          readingText("campaignText"),
          hidden({.kind = ViewKind::Picture, .name = "campaignPhoto"}),
          hidden({.kind = ViewKind::Scroll, .name = "campaignDescription"})};
}

std::vector<View> confirm() {
  return {label("amount"),
          label("campaignName"),
          label("question", "Do you want to fund this campaign?"),
          label("outcome", "Your pledge counts at once, and you find the campaign under Funded."),
          button("yesButton", "Yes"),
          button("noButton", "No")};
}

std::vector<View> update() {
  return {
      label("test"),
      label("updateOneDate"),
      picture("updateOneImage", "Picture of the update"),
      readingText("updateOneText"),
  };
}

std::vector<View> newCampaign() {
  return {formField("nameOfCreator", "Your name"),
          formField("nameOfCampaign", "Campaign name"),
          area("shortDescription", "Your pitch in one sentence"),
          area("fullDescription", "What you pledge, and for whom"),
          formField("desiredFunding", "Goal in dollars", kDecimal),
          label("moneyErrorField", "Error: Please Enter an Amount, for Example 250"),
          formField("imageURL", "Web address of a picture", kAddress),
          area("emailInvite", "E-mail addresses of friends to invite", kEmail),
          button("createButton", "Create campaign")};
}

}  // namespace

ScreenRef layOut(Scene scene) {
  auto screen = std::make_shared<Screen>();
  screen->scene = scene;
  const auto is = [&](const char* title, std::vector<View> views) {
    screen->title = title;
    screen->views = std::move(views);
  };
  switch (scene) {
    case Scene::Landing:
      is("", landing());
      break;
    case Scene::SignUp:
      is("Create an account", signUp());
      break;
    case Scene::Home:
      is("", home());
      break;
    case Scene::Browse:
      is("Browse", {});
      break;
    case Scene::Funded:
      is("Funded by you", {});
      break;
    case Scene::Mine:
      is("Your campaigns", {});
      break;
    case Scene::News:
      is("News", news());
      break;
    case Scene::Campaign:
      is("Campaign", campaign());
      break;
    case Scene::Confirm:
      is("Confirm your pledge", confirm());
      break;
    case Scene::Thanks:
      is("", {label("thankYouLabel", "Thank you for your pledge!"), button("homeButton", "Home")});
      break;
    case Scene::Update:
      is("Update", update());
      break;
    case Scene::NewCampaign:
      is("New campaign", newCampaign());
      break;
  }
  if (scene == Scene::Browse || scene == Scene::Funded || scene == Scene::Mine) {
    screen->table.emplace();
  }
  return screen;
}

}  // namespace leafund::random
