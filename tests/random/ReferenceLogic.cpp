#include "tests/random/ReferenceApp.h"
#include "tests/random/ReferenceRules.h"

// What each screen does when it loads, and where its buttons lead.
namespace leafund::random {

namespace {

void write(View& input, const std::string& text) {
  input.text = text;
  input.byScreen = true;
}

const char* listName(Scene scene) {
  if (scene == Scene::Browse) return "otherCampaigns";
  return scene == Scene::Funded ? "campaignsIFunded" : "myUnfundedCampaigns";
}

}  // namespace

PledgeList& ReferenceApp::own() {
  if (mine_) return *mine_;
  mine_.emplace();
  const std::string name = twist_ == Twist::OwnNameFollowsSignUp ? "Quillon" : userName_;
  mine_->push_back(seed("Eco-Friendly Stove!", name, 250, 45, 14, "Nov",
                        "I'll buy a new stove to save dolphins!"));
  mine_->push_back(seed("Dine Out Less!", name, 150, 25, 10, "Nov", "Glip Glop Plippety Plop!"));
  return *mine_;
}

const PledgeList& ReferenceApp::listOf(Scene scene) { return listNamed(listName(scene)); }

const PledgeList& ReferenceApp::listNamed(const std::string& name) {
  if (name == "otherCampaigns") return others_;
  return name == "campaignsIFunded" ? funded_ : own();
}

const PledgeRef& ReferenceApp::entry(const PledgeList& list, std::size_t position,
                                     const Screen& screen) const {
  if (position < list.size()) return list[position];
  throw Stopped{className(screen.scene), "position " + std::to_string(position) +
                                             " is outside a list of " +
                                             std::to_string(list.size())};
}

void ReferenceApp::load(const ScreenRef& screen) {
  switch (screen->scene) {
    case Scene::Landing:
      writeSeedUpdates();
      break;
    case Scene::Home:
      screen->hidesBack = true;
      selectTab(0);
      break;
    case Scene::Campaign:
      loadCampaign(screen);
      break;
    case Scene::Update:
      loadUpdate(screen);
      break;
    case Scene::Confirm:
      print(std::to_string(screen->position));
      screen->pledge = entry(others_, screen->position, *screen);
      screen->at("amount").text = dollars(screen->amount);
      screen->at("campaignName").text = screen->pledge->title;
      screen->at("campaignName").hidden = screen->pledge->title.empty();
      screen->hidesBack = true;
      break;
    case Scene::Thanks:
      screen->hidesBack = true;
      if (screen->cameFrom == "NewCampaignVC") {
        screen->at("thankYouLabel").text = "Thank you for creating a campaign!";
      }
      break;
    case Scene::NewCampaign:
      screen->at("moneyErrorField").hidden = true;
      break;
    default:
      break;
  }
}

void ReferenceApp::loadCampaign(const ScreenRef& screen) {
  print(std::to_string(screen->position));
  screen->pledge = entry(listNamed(screen->listName), screen->position, *screen);
  const Pledge& pledge = *screen->pledge;
  const bool funded = pledge.raised == pledge.goal;
  screen->at("errorLabel").hidden = true;
  screen->at("campaignUpdates").hidden = !funded;
  for (const char* name : {"slider", "desiredFund", "currentFund"}) {
    screen->at(name).hidden = funded;
  }
  if (funded) screen->at("labelAboveSlider").text = "Funded!";
  screen->at("slider").progress = pledge.raised / pledge.goal;
  screen->at("desiredFund").text = dollars(pledge.goal);
  screen->at("currentFund").text = dollars(pledge.raised);
  screen->at("campaignTitle").text = pledge.title;
  screen->at("campaignCreator").text = pledge.creator;
  write(screen->at("campaignText"), pledge.description);
  screen->at("campaignText").border = {.width = 1, .black = true};
  screen->at("campaignImage").border = {.width = 0.5, .radius = 65, .black = true, .clips = true};
  if (screen->listName != "otherCampaigns") {
    screen->at("FundButton").hidden = true;
    screen->at("dollarAmountField").hidden = true;
  }
  if (!isAddress(pledge.photo)) {
    throw Stopped{className(screen->scene), "not a URL: " + pledge.photo};
  }
  fetch({pledge.photo, screen, nullptr, "campaignImage"});
}

void ReferenceApp::loadUpdate(const ScreenRef& screen) {
  screen->pledge = entry(listNamed(screen->listName), screen->position, *screen);
  const Pledge& pledge = *screen->pledge;
  const bool updated = !pledge.updateText.empty();
  screen->at("test").text = pledge.title;
  screen->at("updateOneDate").text = updated ? pledge.updateDate : "";
  write(screen->at("updateOneText"),
        updated ? pledge.updateText : "No updates have been made yet!");
  const std::string& photo = updated ? pledge.updatePhoto : wording_.placeholderPhoto;
  fetch({photo, screen, nullptr, "updateOneImage"});
}

void ReferenceApp::press(const ScreenRef& screen, const std::string& button) {
  static const std::map<std::string, void (ReferenceApp::*)(Screen&)> kWork{
      {"signInButton", &ReferenceApp::signIn},
      {"FundButton", &ReferenceApp::fund},
      {"yesButton", &ReferenceApp::book},
      {"createButton", &ReferenceApp::create}};
  static const std::map<std::string, std::size_t> kTabButtons{
      {"browseTab", 0}, {"fundedTab", 1}, {"mineTab", 2}, {"newsTab", 3}};
  if (const auto work = kWork.find(button); work != kWork.end()) {
    (this->*work->second)(*screen);
  } else if (const auto tab = kTabButtons.find(button); tab != kTabButtons.end()) {
    if (screen->tab == tab->second) return;
    selectTab(tab->second);
    layOutTop();
    reload(selectedTab());
  } else if (button == "signUpButton" && screen->scene == Scene::Landing) {
    push(make(Scene::SignUp));
  } else if (button == "signUpButton") {
    signUp(*screen);
  } else if (button == "newButton") {
    push(make(Scene::NewCampaign));
  } else if (button == "noButton") {
    popToNearest(Scene::Campaign);
  } else if (button == "homeButton") {
    popToNearest(Scene::Home);
  } else if (button == "campaignUpdates") {
    const auto update = make(Scene::Update);
    update->position = screen->position;
    update->listName = screen->listName;
    push(update);
  }
}

void ReferenceApp::openRow(const ScreenRef& list, const RowRef& row) {
  const auto campaign = make(Scene::Campaign);
  for (const auto& [position, object] : list->table->shown) {
    if (object == row) campaign->position = position;
  }
  campaign->listName = listName(list->scene);
  push(campaign);
}

}  // namespace leafund::random
