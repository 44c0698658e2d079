#pragma once

#include <cstddef>
#include <memory>
#include <optional>

#include "model/CampaignClass.h"
#include "platform/uikit/Outlet.h"
#include "platform/uikit/UIButton.h"

namespace leafund {

// Asks whether to pledge. Yes books the pledge, the only change of the catalogue in this flow.
class ConfirmPageVC : public UIViewController {
 public:
  std::optional<std::ptrdiff_t> campaignNum;  // position in "otherCampaigns"
  std::optional<float> dollarsDonated;        // dollars
  std::shared_ptr<CampaignClass> campaign;

  Outlet<UIButton> yesButton{this, "yesButton"};
  Outlet<UIButton> noButton{this, "noButton"};

  void viewDidLoad() override;
  void prepareForSegueSender(UIStoryboardSegue& segue, const Sender& sender) override;

  void yesClicked(const Sender& sender);
  void noClicked(const Sender& sender);

 private:
  void raiseFunding();
};

}  // namespace leafund
