#include <gtest/gtest.h>

#include "model/Catalogue.h"
#include "tests/support/HeadlessApplication.h"

namespace leafund {
namespace {

TEST(OwnCampaignsJourneyTest, OwnCampaignsSeenBeforeASignUpKeepTheFirstName) {
  HeadlessApplication app;
  myUnfundedCampaigns();
  app.tap("signUpButton");
  app.type("nameField", "Zelda");
  app.type("passwordField", "x");
  app.type("passwordConfirmField", "x");
  app.tap("signUpButton");
  app.tap("mineTab");
  app.tapRow(0);
  EXPECT_EQ(app.text("campaignCreator"), "Quillon");
  EXPECT_EQ(currentUserName(), "Zelda");
}

// Settled behaviour: the form takes its own messages for texts, and a text that is no URL is fatal
// where a row needs one.
TEST(CreateJourneyDeathTest, ACampaignMadeOfMessagesIsFatalAtTheNextAppearanceOfMine) {
  HeadlessApplication app;
  app.signIn();
  app.tap("mineTab");
  app.tap("newButton");
  app.type("desiredFunding", "5");
  app.tap("createButton");
  EXPECT_EQ(app.text("imageURL"), "Error: Please Enter a URL");
  app.tap("createButton");
  EXPECT_EQ(myUnfundedCampaigns()[0]->title(), "Error: Please Enter a Campaign Name");
  EXPECT_EQ(myUnfundedCampaigns()[0]->photo(), "Error: Please Enter a URL");
  EXPECT_DEATH(app.tap("homeButton"),
               "Leafund stopped: MyProfileVC: not a URL: Error: Please Enter a URL");
}

TEST(AccountJourneyHeadlessTest, SignUpWithEverythingEmptyTwiceMarksOnlyTheConfirmation) {
  HeadlessApplication app;
  app.tap("signUpButton");
  app.tap("signUpButton");
  app.tap("signUpButton");
  EXPECT_EQ(app.text("nameField"), "Error: Please Enter a Name");
  EXPECT_EQ(app.text("passwordField"), "Error: Please Enter a Password");
  EXPECT_EQ(app.text("passwordConfirmField"), "Error: Passwords Do Not Match");
  EXPECT_EQ(app.shown()->className(), "SignUpVC");
}

}  // namespace
}  // namespace leafund
