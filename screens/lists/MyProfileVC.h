#pragma once

#include "platform/uikit/Outlet.h"
#include "screens/lists/CampaignTableViewController.h"

namespace leafund {

// The user's own campaigns.
class MyProfileVC : public CampaignTableViewController {
 public:
  StrongOutlet<UITableView> fundedTable{this, "fundedTable"};  // read by nothing

 protected:
  CampaignList& campaigns() const override { return myUnfundedCampaigns(); }
  std::string reuseIdentifier() const override { return "MyCampaigns"; }
  std::string listName() const override { return "myUnfundedCampaigns"; }
};

}  // namespace leafund
