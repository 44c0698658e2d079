#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "model/Catalogue.h"
#include "screens/campaign/ConfirmPageVC.h"
#include "screens/campaign/OneCampaignViewController.h"
#include "screens/campaign/ThankYouVC.h"
#include "screens/campaign/UpdatePageVC.h"
#include "tests/support/HeadlessApplication.h"

namespace leafund {
namespace {

using Stack = std::vector<std::string>;

std::vector<SegueDescription> segues() { return mainStoryboard().segues(); }

// What a screen was told, in one text.
std::string contextOf(const UIViewController& screen) {
  if (const auto* detail = dynamic_cast<const OneCampaignViewController*>(&screen)) {
    return std::to_string(*detail->campaignNum) + " " + *detail->campaignSendingYou;
  }
  if (const auto* update = dynamic_cast<const UpdatePageVC*>(&screen)) {
    return std::to_string(*update->campaignNum) + " " + *update->campaignSendingYou;
  }
  if (const auto* confirm = dynamic_cast<const ConfirmPageVC*>(&screen)) {
    return std::to_string(*confirm->campaignNum) + " " + std::to_string(*confirm->dollarsDonated);
  }
  if (const auto* thanks = dynamic_cast<const ThankYouVC*>(&screen)) return *thanks->pageFrom;
  return "";
}

TEST(NavigationMapTest, ConfirmingAPledgeCarriesItsContextFromScreenToScreen) {
  HeadlessApplication app;
  app.signIn();
  app.tapRow(2);
  const auto detail = app.shownAs<OneCampaignViewController>();
  EXPECT_EQ(detail->campaignSendingYou, "otherCampaigns");
  EXPECT_EQ(detail->campaignNum, 2);
  app.type("dollarAmountField", "12.50");
  app.tap("FundButton");
  const auto confirm = app.shownAs<ConfirmPageVC>();
  EXPECT_EQ(confirm->dollarsDonated, 12.5F);
  EXPECT_EQ(confirm->campaignNum, 2);
  app.tap("yesButton");
  EXPECT_EQ(app.shownAs<ThankYouVC>()->pageFrom, "ConfirmPageVC");
  EXPECT_EQ(app.text("thankYouLabel"), "Thank you for your pledge!");
}

TEST(NavigationMapTest, CancellingBooksNothingAndReturnsToTheSameDetailScreen) {
  HeadlessApplication app;
  app.signIn();
  app.tapRow(2);
  const auto detail = app.shown();
  app.type("dollarAmountField", "10");
  app.tap("FundButton");
  const auto others = otherCampaigns();
  const auto funded = campaignsIFunded();
  app.tap("noButton");
  EXPECT_EQ(app.shown(), detail);
  EXPECT_EQ(app.text("dollarAmountField"), "10");
  EXPECT_EQ(otherCampaigns(), others);
  EXPECT_EQ(campaignsIFunded(), funded);
  EXPECT_EQ(otherCampaigns()[2]->currFunding(), 175.0F);
}

TEST(NavigationMapTest, TheUpdatesOfAFundedCampaignCarryItsListAndPosition) {
  HeadlessApplication app;
  app.signIn();
  app.tap("fundedTab");
  app.tapRow(1);
  app.tap("campaignUpdates");
  const auto update = app.shownAs<UpdatePageVC>();
  ASSERT_NE(update, nullptr);
  EXPECT_EQ(update->campaignSendingYou, "campaignsIFunded");
  EXPECT_EQ(update->campaignNum, 1);
}

TEST(NavigationMapTest, CreatingACampaignThanksForIt) {
  HeadlessApplication app;
  app.signIn();
  app.tap("mineTab");
  app.tap("newButton");
  app.type("nameOfCreator", "Wren");
  app.type("nameOfCampaign", "Rain Barrels");
  app.type("shortDescription", "I'll catch the rain!");
  app.type("fullDescription", "Barrels for every gutter.");
  app.type("desiredFunding", "250");
  app.type("imageURL", "http://pictures.example/rain.jpg");
  app.tap("createButton");
  EXPECT_EQ(app.shownAs<ThankYouVC>()->pageFrom, "NewCampaignVC");
  EXPECT_EQ(app.text("thankYouLabel"), "Thank you for creating a campaign!");
  app.tap("homeButton");
  EXPECT_EQ(app.rowTitles().front(), "Rain Barrels");
}

TEST(NavigationMapTest, HomeLeadsToTheTabThatWasLeft) {
  HeadlessApplication app;
  app.signIn();
  app.tapRow(0);
  app.type("dollarAmountField", "1");
  app.tap("FundButton");
  app.tap("yesButton");
  app.tap("homeButton");
  EXPECT_EQ(app.stack(), (Stack{"LandingPageVC", "TabBarVC"}));
  EXPECT_EQ(app.shown()->className(), "OtherCampaignsTableViewController");
}

TEST(NavigationMapTest, SignUpLeadsThroughItsFormToHome) {
  HeadlessApplication app;
  app.tap("signUpButton");
  EXPECT_EQ(app.stack(), (Stack{"LandingPageVC", "SignUpVC"}));
  app.type("nameField", "Wren");
  app.type("passwordField", "x");
  app.type("passwordConfirmField", "x");
  app.tap("signUpButton");
  EXPECT_EQ(app.stack(), (Stack{"LandingPageVC", "SignUpVC", "TabBarVC"}));
}

TEST(NavigationMapTest, ADoubleTapOnYesBooksOnce) {
  HeadlessApplication app;
  app.signIn();
  app.tapRow(0);
  app.type("dollarAmountField", "1");
  app.tap("FundButton");
  const auto yes = app.view("yesButton");
  app.application->tap(yes);
  app.application->tap(yes);
  EXPECT_EQ(campaignsIFunded().size(), 4U);
  EXPECT_EQ(otherCampaigns().size(), 6U);
}

TEST(NavigationMapTest, FlowsAreNotEnteredAgainBackwards) {
  HeadlessApplication app;
  app.signIn();
  app.tapRow(0);
  app.type("dollarAmountField", "1");
  app.tap("FundButton");
  app.application->goBack();
  EXPECT_EQ(app.shown()->className(), "ConfirmPageVC");
  app.tap("yesButton");
  app.application->goBack();
  EXPECT_EQ(app.shown()->className(), "ThankYouVC");
}

TEST(NavigationMapTest, EveryTransitionJoinsTwoScenesAndEverySceneIsReached) {
  std::set<std::string> scenes;
  for (const auto& scene : mainStoryboard().scenes()) scenes.insert(scene.name);
  std::set<std::string> reached{"LandingPageVC",
                                // the tabs of home
                                "OtherCampaignsTableViewController", "FundCampaignVC",
                                "MyProfileVC", "NewsFeedVC"};
  for (const auto& segue : segues()) {
    EXPECT_TRUE(scenes.contains(segue.source)) << segue.identifier;
    EXPECT_TRUE(scenes.contains(segue.destination)) << segue.identifier;
    reached.insert(segue.destination);
  }
  EXPECT_EQ(scenes.size(), 12U);
  EXPECT_EQ(reached, scenes);
}

TEST(NavigationMapTest, AScreenWithoutASegueOfItsOwnHasTheBackButton) {
  const auto map = segues();
  std::vector<std::string> ends;
  for (const auto& scene : mainStoryboard().scenes()) {
    const bool leadsOn = std::any_of(map.begin(), map.end(),
                                     [&](const auto& segue) { return segue.source == scene.name; });
    if (!leadsOn) ends.push_back(scene.name);
  }
  // The news are a tab, and the tab bar leads on from there.
  EXPECT_EQ(ends, (std::vector<std::string>{"NewsFeedVC", "UpdatePageVC"}));
  HeadlessApplication app;
  app.signIn();
  app.tap("fundedTab");
  app.tapRow(0);
  app.tap("campaignUpdates");
  app.application->goBack();
  EXPECT_EQ(app.shown()->className(), "OneCampaignViewController");
}

// Identifier, source, destination, and what the destination then knows.
TEST(NavigationMapTest, EveryRowOfTheMapIsWalked) {
  std::set<std::string> walked;
  HeadlessApplication app;
  const auto go = [&](const std::string& segue, const std::string& source, auto act,
                      const std::string& destination, const std::string& context = "") {
    ASSERT_EQ(app.shown()->className() == source ||
                  app.navigation().topViewController()->className() == source,
              true)
        << segue;
    act();
    EXPECT_EQ(app.navigation().topViewController()->className(), destination) << segue;
    EXPECT_EQ(contextOf(*app.navigation().topViewController()), context) << segue;
    walked.insert(segue + " " + source + " " + destination);
  };
  const auto tap = [&](const char* name) { return [&app, name] { app.tap(name); }; };
  const auto row = [&](std::ptrdiff_t at) { return [&app, at] { app.tapRow(at); }; };
  const std::string landing = "LandingPageVC", home = "TabBarVC", thanks = "ThankYouVC",
                    detail = "OneCampaignViewController", confirm = "ConfirmPageVC",
                    browse = "OtherCampaignsTableViewController", form = "NewCampaignVC";

  app.type("userEmail", "a");
  app.type("password", "b");
  go("signInSegue", landing, tap("signInButton"), home);
  go("campaignSegue", browse, row(0), detail, "0 otherCampaigns");
  app.type("dollarAmountField", "1");
  go("campaignFundedSegue", detail, tap("FundButton"), confirm, "0 1.000000");
  go("noSegue", confirm, tap("noButton"), detail, "0 otherCampaigns");
  app.tap("FundButton");
  go("yesSegue", confirm, tap("yesButton"), thanks, "ConfirmPageVC");
  go("homeSegue", thanks, tap("homeButton"), home);
  app.tap("fundedTab");
  go("campaignSegue", "FundCampaignVC", row(1), detail, "1 campaignsIFunded");
  go("updatesSegue", detail, tap("campaignUpdates"), "UpdatePageVC", "1 campaignsIFunded");
  app.application->goBack();
  app.application->goBack();
  app.tap("mineTab");
  go("campaignSegue", "MyProfileVC", row(0), detail, "0 myUnfundedCampaigns");
  app.application->goBack();
  go("newCampaignSegue", home, tap("newButton"), form);
  for (const auto* input :
       {"nameOfCreator", "nameOfCampaign", "shortDescription", "fullDescription", "imageURL"}) {
    app.type(input, "x");
  }
  app.type("desiredFunding", "1");
  go("campaignCreatedSegue", form, tap("createButton"), thanks, "NewCampaignVC");

  HeadlessApplication anew;
  anew.tap("signUpButton");
  EXPECT_EQ(anew.shown()->className(), "SignUpVC");
  walked.insert("signUpSegue LandingPageVC SignUpVC");
  for (const auto* input : {"nameField", "passwordField", "passwordConfirmField"}) {
    anew.type(input, "x");
  }
  anew.tap("signUpButton");
  EXPECT_EQ(anew.navigation().topViewController()->className(), home);
  walked.insert("signUpSecondSegue SignUpVC TabBarVC");

  std::set<std::string> tabled;
  for (const auto& segue : segues()) {
    tabled.insert(segue.identifier + " " + segue.source + " " + segue.destination);
  }
  EXPECT_EQ(walked, tabled);
}

TEST(NavigationMapDeathTest, AnUnknownIdentifierIsFatal) {
  HeadlessApplication app;
  EXPECT_DEATH(app.shown()->performSegueWithIdentifierSender("homeSegue", app.shown()),
               "LandingPageVC: no segue named homeSegue leaves this screen");
}

}  // namespace
}  // namespace leafund
