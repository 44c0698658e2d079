#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "model/CampaignClass.h"
#include "platform/uikit/Outlet.h"
#include "platform/uikit/UIButton.h"
#include "platform/uikit/UIImageView.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/UIProgressView.h"
#include "platform/uikit/UIScrollView.h"
#include "platform/uikit/UITextInput.h"

namespace leafund {

// One campaign in full and, for other people's campaigns, the way to pledge to it. Reads the
// catalogue and never changes it.
class OneCampaignViewController : public UIViewController {
 public:
  std::optional<std::ptrdiff_t> campaignNum;  // position in the list named below
  float dollarsDonated = 0;                   // the last amount that was read, accepted or not
  std::shared_ptr<CampaignClass> campaign;
  std::optional<std::string> campaignSendingYou;  // list name

  Outlet<UIImageView> campaignPhoto{this, "campaignPhoto"};
  Outlet<UILabel> campaignTitle{this, "campaignTitle"};
  Outlet<UIScrollView> campaignDescription{this, "campaignDescription"};
  Outlet<UITextField> dollarAmountField{this, "dollarAmountField"};
  Outlet<UIButton> campaignUpdates{this, "campaignUpdates"};
  Outlet<UIImageView> campaignImage{this, "campaignImage"};
  Outlet<UILabel> campaignCreator{this, "campaignCreator"};
  Outlet<UITextView> campaignText{this, "campaignText"};
  Outlet<UILabel> desiredFund{this, "desiredFund"};
  Outlet<UILabel> currentFund{this, "currentFund"};
  Outlet<UILabel> labelAboveSlider{this, "labelAboveSlider"};
  Outlet<UILabel> errorLabel{this, "errorLabel"};
  Outlet<UIButton> FundButton{this, "FundButton"};
  Outlet<UIProgressView> slider{this, "slider"};

  void viewDidLoad() override;
  void viewDidLayoutSubviews() override {}
  void prepareForSegueSender(UIStoryboardSegue& segue, const Sender& sender) override;

  void ButtonClicked(const Sender& sender);
  void campaignUpdatesClicked(const Sender& sender);

 private:
  void showFundedState();
  void showSums();
  void frameTextAndPicture();
  void fetchCampaignImage();
};

}  // namespace leafund
