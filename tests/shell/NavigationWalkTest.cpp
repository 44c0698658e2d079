#include <gtest/gtest.h>

#include <set>

#include "screens/campaign/ConfirmPageVC.h"
#include "screens/campaign/OneCampaignViewController.h"
#include "screens/campaign/ThankYouVC.h"
#include "screens/campaign/UpdatePageVC.h"
#include "tests/support/HeadlessApplication.h"

namespace leafund {
namespace {

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

// Identifier, source, destination, and what the destination then knows.
TEST(NavigationWalkTest, EveryRowOfTheMapIsWalked) {
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
  for (const auto& segue : mainStoryboard().segues()) {
    tabled.insert(segue.identifier + " " + segue.source + " " + segue.destination);
  }
  EXPECT_EQ(walked, tabled);
}

}  // namespace
}  // namespace leafund
