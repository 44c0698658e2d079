#include "tests/look/Stages.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

#include "model/Catalogue.h"
#include "tests/look/LongTexts.h"

namespace leafund {

namespace {

using namespace std::string_literals;
using App = StageApplication;

void makeTextsLong(CampaignClass& campaign) {
  campaign.setTitle(longTitle());
  campaign.setCreator(longName());
  campaign.setCampaignDescription(longDescription());
  campaign.setShortDescription(longDescription());
}

void openCampaign(App& app, const char* list) {
  app.openTab(list);
  app.tapRow(0);
}

void pledge(App& app, const char* amount) {
  openCampaign(app, "browseTab");
  app.type("dollarAmountField", amount);
  app.tap("FundButton");
}

void openUpdate(App& app) {
  openCampaign(app, "fundedTab");
  app.tap("campaignUpdates");
}

void openForm(App& app) {
  app.openTab("mineTab");
  app.settle();  // else what the list has asked for comes in any order with what it asks for again
  app.tap("newButton");
}

void fillForm(App& app) {
  openForm(app);
  app.type("nameOfCreator", "Wren");
  app.type("nameOfCampaign", "Rain Barrels");
  app.type("shortDescription", "I'll catch the rain!");
  app.type("fullDescription", "A barrel under every gutter of the street.");
  app.type("desiredFunding", "250");
  app.type("imageURL", StageApplication::kOtherHost + "/biking-to-work.jpg"s);
  app.type("emailInvite", "tamsin@example.org, arlo@example.org");
}

void fillFormAtLength(App& app) {
  openForm(app);
  app.type("nameOfCreator", longName());
  app.type("nameOfCampaign", longTitle());
  app.type("shortDescription", longDescription());
  app.type("fullDescription", longDescription() + "\n\n" + longDescription());
  app.type("desiredFunding", "16777216.00000000000000000000000000000000000000000000000000");
  app.type("imageURL", "http://pictures.example/" + std::string(180, 'a') + ".jpg");
  app.type("emailInvite", longName() + "@example.org");
}

void fillSignUp(App& app, const char* password, const char* again) {
  app.tap("signUpButton");
  app.type("nameField", "Wren");
  app.type("passwordField", password);
  app.type("passwordConfirmField", again);
}

void askForSums(App& app, float raised, float goal) {
  otherCampaigns()[0]->setCurrFunding(raised);
  otherCampaigns()[0]->setTotalFunding(goal);
  openCampaign(app, "browseTab");
}

constexpr auto kSilent = App::Pictures::Silent;

std::vector<Stage> accountStages() {
  return {
      {"landing-empty", true, [](App&) {}},
      {"landing-filled", false,
       [](App& app) {
         app.type("userEmail", "wren@example.org");
         app.type("password", "secret");
       }},
      {"landing-refused", false, [](App& app) { app.tap("signInButton"); }},
      {"landing-in-focus", false, [](App& app) { app.tab(1); }},
      {"landing-button-in-focus", false, [](App& app) { app.tab(3); }},
      {"sign-up-empty", true, [](App& app) { app.tap("signUpButton"); }},
      {"sign-up-filled", false, [](App& app) { fillSignUp(app, "secret", "secret"); }},
      {"sign-up-refused", false,
       [](App& app) {
         app.tap("signUpButton");
         app.tap("signUpButton");
       }},
      {"sign-up-mismatch", false,
       [](App& app) {
         fillSignUp(app, "secret", "other");
         app.tap("signUpButton");
       }},
  };
}

std::vector<Stage> listStages() {
  return {
      {"browse-filled", true, [](App& app) { app.openTab("browseTab"); }},
      {"browse-empty", false,
       [](App& app) {
         otherCampaigns().clear();
         app.openTab("browseTab");
       }},
      {"browse-no-picture", false, [](App& app) { app.openTab("browseTab"); }, kSilent},
      {"browse-long-texts", false,
       [](App& app) {
         for (const auto& each : otherCampaigns()) makeTextsLong(*each);
         app.openTab("browseTab");
       }},
      {"funded-filled", true, [](App& app) { app.openTab("fundedTab"); }},
      {"funded-empty", false,
       [](App& app) {
         campaignsIFunded().clear();
         app.openTab("fundedTab");
       }},
      {"mine-filled", true, [](App& app) { app.openTab("mineTab"); }},
      {"mine-empty", false,
       [](App& app) {
         myUnfundedCampaigns().clear();
         app.openTab("mineTab");
       }},
      {"mine-created", false,
       [](App& app) {
         fillForm(app);
         app.tap("createButton");
         app.tap("homeButton");
       }},
      {"news-filled", true, [](App& app) { app.openTab("newsTab"); }},
      {"home-tab-in-focus", false,
       [](App& app) {
         otherCampaigns().clear();
         app.openTab("browseTab");
         app.tab(3);
       }},
  };
}

std::vector<Stage> campaignStages() {
  return {
      {"campaign-open", true, [](App& app) { openCampaign(app, "browseTab"); }},
      {"campaign-filled", false,
       [](App& app) {
         openCampaign(app, "browseTab");
         app.type("dollarAmountField", "12.50");
       }},
      {"campaign-refused", false, [](App& app) { pledge(app, "ten"); }},
      {"campaign-exceeds", false, [](App& app) { pledge(app, "1000"); }},
      {"campaign-funded", false, [](App& app) { openCampaign(app, "fundedTab"); }},
      {"campaign-own", false, [](App& app) { openCampaign(app, "mineTab"); }},
      {"campaign-no-picture", false, [](App& app) { openCampaign(app, "browseTab"); }, kSilent},
      {"campaign-long-texts", false,
       [](App& app) {
         makeTextsLong(*otherCampaigns()[0]);
         askForSums(app, 16777215, 16777216);
       }},
      {"campaign-largest-sums", false, [](App& app) { askForSums(app, 3.4e38F, 3.3e38F); }},
      {"campaign-nothing-raised", false, [](App& app) { askForSums(app, 0, 200); }},
      {"confirm-asked", true, [](App& app) { pledge(app, "12.50"); }},
      {"thanks-pledged", true,
       [](App& app) {
         pledge(app, "12.50");
         app.tap("yesButton");
       }},
      {"thanks-created", false,
       [](App& app) {
         fillForm(app);
         app.tap("createButton");
       }},
  };
}

std::vector<Stage> otherStages() {
  return {
      {"update-written", true, openUpdate},
      {"update-none", false,
       [](App& app) {
         campaignsIFunded()[0]->setUpdateOneText("");
         openUpdate(app);
       }},
      {"update-no-picture", false, openUpdate, kSilent},
      {"update-long-texts", false,
       [](App& app) {
         makeTextsLong(*campaignsIFunded()[0]);
         campaignsIFunded()[0]->setUpdateOneText(longDescription());
         campaignsIFunded()[0]->setUpdateOneDate(longName());
         openUpdate(app);
       }},
      {"new-campaign-empty", true, openForm},
      {"new-campaign-filled", false, fillForm},
      {"new-campaign-refused", false,
       [](App& app) {
         openForm(app);
         app.tap("createButton");
       }},
      {"new-campaign-long-texts", false, fillFormAtLength},
  };
}

}  // namespace

const std::vector<Stage>& stages() {
  static const auto& all = *[] {
    auto* joined = new std::vector<Stage>;
    for (const auto& part : {accountStages(), listStages(), campaignStages(), otherStages()}) {
      joined->insert(joined->end(), part.begin(), part.end());
    }
    return joined;
  }();
  return all;
}

const Stage& stageNamed(const std::string& name) {
  const auto found = std::find_if(stages().begin(), stages().end(),
                                  [&](const Stage& stage) { return stage.name == name; });
  if (found == stages().end()) throw std::out_of_range("no stage is named " + name);
  return *found;
}

std::string sizeText(QSize size) {
  return std::to_string(size.width()) + "x" + std::to_string(size.height());
}

std::string testName(std::string text) {
  for (char& letter : text) {
    if (!std::isalnum(static_cast<unsigned char>(letter))) letter = '_';
  }
  return text;
}

}  // namespace leafund
