#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/Catalogue.h"
#include "tests/journeys/Walks.h"

namespace leafund {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class PledgeJourneyTest : public testing::Test {
 protected:
  std::unique_ptr<Driver> app = Driver::make();
};

TEST_F(PledgeJourneyTest, APledgeMovesTheCampaignFromBrowseToTheFrontOfFunded) {
  signIn(*app);
  EXPECT_EQ(app->screen(), "OtherCampaignsTableViewController");
  EXPECT_TRUE(app->rowPictureShown(0));
  app->tapRow(0);
  EXPECT_EQ(app->text("campaignTitle"), "Vegetarian for PETA");
  EXPECT_EQ(app->text("currentFund"), "$120.00");
  EXPECT_EQ(app->text("desiredFund"), "$200.00");
  EXPECT_TRUE(app->pictureShown("campaignImage"));
  EXPECT_FALSE(app->seen("errorLabel"));

  app->type("dollarAmountField", "81");
  app->tap("FundButton");
  EXPECT_EQ(app->text("errorLabel"), "Error: Donation Exceeds Maximum");
  EXPECT_TRUE(app->seen("errorLabel"));

  app->type("dollarAmountField", "80");
  app->tap("FundButton");
  EXPECT_EQ(app->screen(), "ConfirmPageVC");
  app->tap("yesButton");
  EXPECT_EQ(app->screen(), "ThankYouVC");
  app->tap("homeButton");
  EXPECT_THAT(app->rows(), Not(Contains("Vegetarian for PETA")));
  EXPECT_EQ(app->rows().front(), "Biking to Work!");
  app->tap("fundedTab");
  EXPECT_EQ(app->rows().front(), "Vegetarian for PETA");
  EXPECT_EQ(campaignsIFunded()[0]->currFunding(), 200.0F);
  EXPECT_EQ(campaignsIFunded()[0]->totalFunding(), 200.0F);
}

TEST_F(PledgeJourneyTest, TheWalkPrintsTheEmailTheCountsAndThePositions) {
  testing::internal::CaptureStdout();
  signIn(*app);
  pledge(*app, 1, "10");
  app->tap("homeButton");
  app->tap("fundedTab");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "wren@example.org\n7\n1\n1\n6\n4\n");
}

TEST_F(PledgeJourneyTest, DecliningLeavesEverythingAsItWas) {
  signIn(*app);
  app->tapRow(2);
  app->type("dollarAmountField", "12.50");
  app->tap("FundButton");
  app->tap("noButton");
  EXPECT_EQ(app->screen(), "OneCampaignViewController");
  EXPECT_EQ(app->text("dollarAmountField"), "12.50");
  app->back();
  EXPECT_EQ(app->rows().front(), "Vegetarian for PETA");
  EXPECT_EQ(otherCampaigns().size(), 7U);
}

TEST_F(PledgeJourneyTest, ACampaignFundedToItsGoalSaysSoAndHasNoUpdateYet) {
  signIn(*app);
  pledge(*app, 1, "133");
  app->tap("homeButton");
  app->tap("fundedTab");
  app->tapRow(0);
  EXPECT_EQ(app->text("labelAboveSlider"), "Funded!");
  EXPECT_FALSE(app->seen("slider"));
  EXPECT_FALSE(app->seen("FundButton"));
  app->tap("campaignUpdates");
  EXPECT_EQ(app->text("updateOneText"), "No updates have been made yet!");
}

TEST_F(PledgeJourneyTest, TheUpdatesOfBothDemonstrationCampaignsAreThere) {
  signIn(*app);
  app->tap("fundedTab");
  app->tapRow(0);
  app->tap("campaignUpdates");
  EXPECT_EQ(app->text("test"), "Compost for Christ!");
  EXPECT_EQ(app->text("updateOneDate"), "December 1");
  EXPECT_TRUE(app->pictureShown("updateOneImage"));
  app->back();
  app->back();
  app->tapRow(1);
  app->tap("campaignUpdates");
  EXPECT_EQ(app->text("test"), "Lights Out!");
  EXPECT_EQ(app->text("updateOneDate"), "December 3");
  EXPECT_TRUE(app->pictureShown("updateOneImage"));
}

TEST_F(PledgeJourneyTest, ScrollingAndResizingKeepTheListWhole) {
  signIn(*app);
  app->scroll(160.0 * 3);
  EXPECT_THAT(app->rows(), Contains("Organic Only!"));
  app->resize({568, 500});
  EXPECT_FALSE(app->rows().empty());
  app->scroll(0);
  EXPECT_EQ(app->rows().front(), "Vegetarian for PETA");
}

}  // namespace
}  // namespace leafund
