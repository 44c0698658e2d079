#pragma once

#include "platform/uikit/Outlet.h"
#include "screens/lists/CampaignTableViewController.h"

namespace leafund {

// The campaigns the user funded, the latest first.
class FundCampaignVC : public CampaignTableViewController {
 public:
  StrongOutlet<UITableView> fundedTable{this, "fundedTable"};  // read by nothing

 protected:
  CampaignList& campaigns() const override { return campaignsIFunded(); }
  std::string reuseIdentifier() const override { return "Funded"; }
  std::string listName() const override { return "campaignsIFunded"; }
};

}  // namespace leafund
