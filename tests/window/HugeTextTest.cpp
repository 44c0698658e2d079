#include "model/Catalogue.h"
#include "tests/support/ProcessorTime.h"
#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

using HugeTextTest = WindowTest;

// Drawn whole, these take 20 seconds and more.
TEST_F(HugeTextTest, ACampaignWhoseTextsAreOneEndlessWordOpensWithinTwoSeconds) {
  const std::string endless(300'000, 'm');
  auto& campaign = *otherCampaigns().front();
  campaign.setTitle(endless);
  campaign.setCreator(endless);
  campaign.setCampaignDescription(endless);
  signIn();
  const double before = processorSeconds();
  click("abc-0");
  EXPECT_LT(processorSeconds() - before, 2);
  EXPECT_EQ(app.shown()->className(), "OneCampaignViewController");
  EXPECT_GT(app.require("campaignCreator").height(), 1'000);  // it is drawn, and much of it
}

}  // namespace
}  // namespace leafund
