#include <utility>

#include "tests/random/ReferenceScreen.h"

// What every scene holds, in reading order. Its words are the application's own.
namespace leafund::random {

namespace {

enum Keyboard { kPlain, kEmail, kDecimal, kAddress };

View label(std::string name) { return {.kind = ViewKind::Label, .name = std::move(name)}; }

View button(std::string name) { return {.kind = ViewKind::Button, .name = std::move(name)}; }

View field(std::string name, Keyboard keyboard = kPlain) {
  return {.kind = ViewKind::Field, .name = std::move(name), .keyboard = keyboard};
}

View secret(std::string name) {
  View view = field(std::move(name));
  view.secure = true;
  return view;
}

View formField(std::string name, Keyboard keyboard = kPlain) {
  View view = field(std::move(name), keyboard);
  view.returnEndsEditing = true;
  return view;
}

View area(std::string name, Keyboard keyboard = kPlain) {
  View view = field(std::move(name), keyboard);
  view.kind = ViewKind::Area;
  return view;
}

View readingText(std::string name) {
  return {.kind = ViewKind::Area, .name = std::move(name), .editable = false};
}

View picture(std::string name) {
  return {.kind = ViewKind::Picture, .name = std::move(name), .fillsByCutting = true};
}

View tab(std::string name) { return {.kind = ViewKind::Tab, .name = std::move(name)}; }

View hidden(View view) {
  view.hidden = true;
  return view;
}

std::vector<View> landing() {
  return {label("brand"), label("tagline"), field("userEmail", kEmail), secret("password"),
          button("signInButton"),
          // Other ways on.
          label("newHere"), button("signUpButton")};
}

std::vector<View> signUp() {
  return {label("welcome"), field("nameField"), secret("passwordField"),
          secret("passwordConfirmField"), button("signUpButton")};
}

std::vector<View> home() {
  return {{.kind = ViewKind::Tabs, .name = "tabs"},
          {.kind = ViewKind::TabBar, .name = "tabBar"},
          tab("browseTab"),
          tab("fundedTab"),
          tab("mineTab"),
          tab("newsTab"),
          hidden(button("newButton"))};
}

std::vector<View> news() {
  return {
      picture("rideStoryPicture"),    label("rideStoryTitle"),    label("rideStoryText"),
      picture("compostStoryPicture"), label("compostStoryTitle"), label("compostStoryText"),
      picture("pledgeStoryPicture"),  label("pledgeStoryTitle"),  label("pledgeStoryText"),
  };
}

std::vector<View> campaign() {
  return {picture("campaignImage"),
          label("campaignTitle"),
          label("byCreator"),
          label("campaignCreator"),
          label("labelAboveSlider"),
          {.kind = ViewKind::Progress, .name = "slider"},
          label("currentFund"),
          label("desiredFund"),
          field("dollarAmountField", kDecimal),
          label("errorLabel"),
          button("FundButton"),
          button("campaignUpdates"),
          label("about"),
          readingText("campaignText"),
          hidden({.kind = ViewKind::Picture, .name = "campaignPhoto"}),
          hidden({.kind = ViewKind::Scroll, .name = "campaignDescription"})};
}

std::vector<View> confirm() {
  return {label("amount"),  label("campaignName"), label("question"),
          label("outcome"), button("yesButton"),   button("noButton")};
}

std::vector<View> thanks() { return {label("thankYouLabel"), button("homeButton")}; }

std::vector<View> update() {
  return {
      label("test"),
      label("updateOneDate"),
      picture("updateOneImage"),
      readingText("updateOneText"),
  };
}

std::vector<View> newCampaign() {
  return {formField("nameOfCreator"),
          formField("nameOfCampaign"),
          area("shortDescription"),
          area("fullDescription"),
          formField("desiredFunding", kDecimal),
          label("moneyErrorField"),
          formField("imageURL", kAddress),
          area("emailInvite", kEmail),
          button("createButton")};
}

std::vector<View> viewsOf(Scene scene) {
  switch (scene) {
    case Scene::Landing:
      return landing();
    case Scene::SignUp:
      return signUp();
    case Scene::Home:
      return home();
    case Scene::News:
      return news();
    case Scene::Campaign:
      return campaign();
    case Scene::Confirm:
      return confirm();
    case Scene::Thanks:
      return thanks();
    case Scene::Update:
      return update();
    case Scene::NewCampaign:
      return newCampaign();
    case Scene::Browse:
    case Scene::Funded:
    case Scene::Mine:
      break;
  }
  return {};
}

}  // namespace

ScreenRef layOut(Scene scene, const SceneWords& words) {
  auto screen = std::make_shared<Screen>();
  screen->scene = scene;
  screen->title = words.title;
  screen->views = viewsOf(scene);
  for (auto& view : screen->views) {
    if (const auto said = words.views.find(view.name); said != words.views.end()) {
      view.text = said->second.text;
      view.placeholder = said->second.placeholder;
      view.spoken = said->second.spoken;
    }
  }
  if (scene == Scene::Browse || scene == Scene::Funded || scene == Scene::Mine) {
    screen->table.emplace();
  }
  return screen;
}

}  // namespace leafund::random
