#include <gtest/gtest.h>

#include "model/Catalogue.h"
#include "tests/journeys/Walks.h"

namespace leafund {
namespace {

class CreateJourneyTest : public testing::Test {
 protected:
  void openForm() {
    signIn(*app);
    app->tap("mineTab");
    app->tap("newButton");
  }
  std::unique_ptr<Driver> app = Driver::make();
};

TEST_F(CreateJourneyTest, ANewCampaignIsTheFirstOfTheUsersOwnWithItsPicture) {
  openForm();
  fillNewCampaign(*app, app->pictureAddress("solar-panel-house.jpg"));
  app->tap("createButton");
  EXPECT_EQ(app->text("thankYouLabel"), "Thank you for creating a campaign!");
  app->tap("homeButton");
  EXPECT_EQ(app->screen(), "MyProfileVC");
  EXPECT_EQ(app->rows().front(), "Rain Barrels");
  EXPECT_TRUE(app->rowPictureShown(0));
  app->tapRow(0);
  EXPECT_EQ(app->text("desiredFund"), "$250.00");
  EXPECT_EQ(app->text("currentFund"), "$0.00");
  EXPECT_FALSE(app->seen("dollarAmountField"));
}

TEST_F(CreateJourneyTest, ARefusedFormTellsWhatIsMissing) {
  openForm();
  app->type("desiredFunding", "lots");
  app->tap("createButton");
  EXPECT_EQ(app->screen(), "NewCampaignVC");
  EXPECT_EQ(app->text("nameOfCampaign"), "Error: Please Enter a Campaign Name");
  EXPECT_EQ(app->text("desiredFunding"), "lots");
  EXPECT_TRUE(app->seen("moneyErrorField"));
  fillNewCampaign(*app, app->pictureAddress("fly-less.jpg"));
  app->tap("createButton");
  EXPECT_EQ(app->screen(), "ThankYouVC");
}

TEST_F(CreateJourneyTest, TheFormOpensAnewEachTime) {
  openForm();
  app->type("nameOfCampaign", "Rain Barrels");
  app->back();
  EXPECT_EQ(app->screen(), "MyProfileVC");
  app->tap("newButton");
  EXPECT_EQ(app->text("nameOfCampaign"), "");
}

}  // namespace
}  // namespace leafund
