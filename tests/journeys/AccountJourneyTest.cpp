#include <gtest/gtest.h>

#include "model/Catalogue.h"
#include "tests/journeys/Walks.h"

namespace leafund {
namespace {

class AccountJourneyTest : public testing::Test {
 protected:
  std::unique_ptr<Driver> app = Driver::make();
};

TEST_F(AccountJourneyTest, ARefusedSignInTellsWhyAndEnteringTheInputsClearsThem) {
  app->tap("signInButton");
  EXPECT_EQ(app->screen(), "LandingPageVC");
  EXPECT_EQ(app->text("userEmail"), "Error: Please Enter a Name");
  EXPECT_EQ(app->text("password"), "Error: Please Enter a Password");
  signIn(*app);
  EXPECT_EQ(app->screen(), "OtherCampaignsTableViewController");
}

TEST_F(AccountJourneyTest, ANewUsersNameStandsOnTheirOwnCampaigns) {
  signUp(*app, "Zelda");
  app->tap("mineTab");
  app->tapRow(0);
  EXPECT_EQ(app->text("campaignTitle"), "Eco-Friendly Stove!");
  EXPECT_EQ(app->text("campaignCreator"), "Zelda");
  app->back();
  app->tapRow(1);
  EXPECT_EQ(app->text("campaignCreator"), "Zelda");
}

TEST_F(AccountJourneyTest, PasswordsThatDifferKeepTheUserOnTheForm) {
  app->tap("signUpButton");
  app->type("nameField", "Zelda");
  app->type("passwordField", "abc");
  app->type("passwordConfirmField", "abd");
  app->tap("signUpButton");
  EXPECT_EQ(app->screen(), "SignUpVC");
  EXPECT_EQ(app->text("passwordConfirmField"), "Error: Passwords Do Not Match");
  app->type("passwordConfirmField", "abc");
  app->tap("signUpButton");
  EXPECT_EQ(app->screen(), "OtherCampaignsTableViewController");
  EXPECT_EQ(currentUserName(), "Zelda");
}

TEST_F(AccountJourneyTest, FromTheFormBackLeadsToTheLandingScreen) {
  app->type("userEmail", "wren@example.org");
  app->tap("signUpButton");
  app->back();
  EXPECT_EQ(app->screen(), "LandingPageVC");
  EXPECT_EQ(app->text("userEmail"), "wren@example.org");
}

}  // namespace
}  // namespace leafund
