#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/Catalogue.h"
#include "tests/support/HeadlessApplication.h"

namespace leafund {
namespace {

using testing::ElementsAre;

TEST(PledgeJourneyTest, APledgeMovesTheCampaignFromBrowseToTheFrontOfFunded) {
  testing::internal::CaptureStdout();
  HeadlessApplication app;
  app.signIn();
  app.tapRow(0);
  EXPECT_EQ(app.text("campaignTitle"), "Vegetarian for PETA");
  app.type("dollarAmountField", "81");
  app.tap("FundButton");
  EXPECT_EQ(app.text("errorLabel"), "Error: Donation Exceeds Maximum");
  EXPECT_FALSE(app.view("errorLabel")->hidden());
  app.type("dollarAmountField", "80");
  app.tap("FundButton");
  EXPECT_EQ(app.stack(), (std::vector<std::string>{"LandingPageVC", "TabBarVC",
                                                   "OneCampaignViewController", "ConfirmPageVC"}));
  app.tap("yesButton");
  EXPECT_EQ(app.text("thankYouLabel"), "Thank you for your pledge!");
  app.tap("homeButton");
  EXPECT_EQ(app.rowTitles().front(), "Biking to Work!");
  app.tap("fundedTab");
  EXPECT_EQ(app.rowTitles().front(), "Vegetarian for PETA");
  EXPECT_EQ(campaignsIFunded()[0]->currFunding(), 200.0F);
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "wren@example.org\n7\n0\n0\n6\n4\n");
}

}  // namespace
}  // namespace leafund
