#pragma once

#include "screens/lists/CampaignTableViewController.h"

namespace leafund {

// Other people's campaigns, to browse.
class OtherCampaignsTableViewController : public CampaignTableViewController {
 protected:
  CampaignList& campaigns() const override { return otherCampaigns(); }
  std::string reuseIdentifier() const override { return "abc"; }
  std::string listName() const override { return "otherCampaigns"; }
};

}  // namespace leafund
