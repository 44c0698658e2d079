#include "tests/screens/OneCampaignFixture.h"

namespace leafund {
namespace {

using OneCampaignDeathTest = OneCampaignTest;

TEST_F(OneCampaignDeathTest, APositionEqualToTheListsCountIsFatalAndNotClamped) {
  EXPECT_DEATH(open("otherCampaigns", 7),
               "Leafund stopped: OneCampaignViewController: position 7 is outside a list of 7");
  EXPECT_DEATH(open("campaignsIFunded", 3), "position 3 is outside a list of 3");
  EXPECT_DEATH(open("myUnfundedCampaigns", 2), "position 2 is outside a list of 2");
}

TEST_F(OneCampaignDeathTest, ANegativePositionIsFatal) {
  EXPECT_DEATH(open("otherCampaigns", -1), "position -1 is outside a list of 7");
}

TEST_F(OneCampaignDeathTest, AListNameWithoutAPositionIsFatal) {
  detail->campaignSendingYou = "otherCampaigns";
  EXPECT_DEATH(detail->view(), "OneCampaignViewController: no campaign position was given");
}

TEST_F(OneCampaignDeathTest, AnAddressThatIsNoUrlIsFatal) {
  otherCampaigns()[0]->setPhoto("Error: Please Enter a URL");
  EXPECT_DEATH(open("otherCampaigns", 0),
               "OneCampaignViewController: not a URL: Error: Please Enter a URL");
  otherCampaigns()[0]->setPhoto("");
  EXPECT_DEATH(open("otherCampaigns", 0), "OneCampaignViewController: not a URL: ");
}

TEST_F(OneCampaignDeathTest, AnAbsentOutletIsFatalAndNamed) {
  open("otherCampaigns", 0);
  detail->releaseView();
  EXPECT_DEATH(detail->ButtonClicked(nullptr),
               "OneCampaignViewController: the outlet dollarAmountField is absent");
  EXPECT_DEATH(host.answer(0, pictureBody(8, 8)),
               "OneCampaignViewController: the outlet campaignImage is absent");
}

}  // namespace
}  // namespace leafund
