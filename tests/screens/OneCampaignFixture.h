#pragma once

#include <gtest/gtest.h>

#include <string>

#include "model/Catalogue.h"
#include "platform/headless/HeadlessHost.h"
#include "screens/campaign/OneCampaignViewController.h"
#include "tests/support/Pictures.h"
#include "tests/support/Screens.h"

namespace leafund {

// The detail screen by itself, its segues written down.
class OneCampaignTest : public testing::Test {
 protected:
  std::shared_ptr<CampaignClass> open(const std::string& listName, std::ptrdiff_t position) {
    detail->campaignSendingYou = listName;
    detail->campaignNum = position;
    detail->view();
    return detail->campaign;
  }
  std::shared_ptr<CampaignClass> openWith(float goal, float raised) {
    auto& campaign = *otherCampaigns()[0];
    campaign.setTotalFunding(goal);
    campaign.setCurrFunding(raised);
    return open("otherCampaigns", 0);
  }

  HeadlessHost host;
  RecordedScreen<OneCampaignViewController> detail{"OneCampaignViewController"};
};

}  // namespace leafund
