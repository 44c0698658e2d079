#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "model/Catalogue.h"
#include "screens/campaign/ConfirmPageVC.h"
#include "screens/campaign/OneCampaignViewController.h"
#include "screens/campaign/ThankYouVC.h"
#include "screens/campaign/UpdatePageVC.h"
#include "tests/support/CatalogueRecords.h"
#include "tests/support/HeadlessApplication.h"

namespace leafund {
namespace {

using Stack = std::vector<std::string>;

std::vector<SegueDescription> segues() { return mainStoryboard().segues(); }

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
}

TEST(NavigationMapTest, CancellingBooksNothingAndReturnsToTheSameDetailScreen) {
  HeadlessApplication app;
  app.signIn();
  app.tapRow(2);
  const auto detail = app.shown();
  app.type("dollarAmountField", "10");
  app.tap("FundButton");
  const auto records = catalogueRecords();
  app.tap("noButton");
  EXPECT_EQ(app.shown(), detail);
  EXPECT_EQ(app.text("dollarAmountField"), "10");
  EXPECT_EQ(catalogueRecords(), records);
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
  EXPECT_EQ(app.shown()->className(), "MyProfileVC");
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

TEST(NavigationMapDeathTest, AnUnknownIdentifierIsFatal) {
  HeadlessApplication app;
  EXPECT_DEATH(app.shown()->performSegueWithIdentifierSender("homeSegue", app.shown()),
               "LandingPageVC: no segue named homeSegue leaves this screen");
}

}  // namespace
}  // namespace leafund
