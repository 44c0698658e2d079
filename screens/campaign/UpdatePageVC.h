#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "model/CampaignClass.h"
#include "platform/uikit/Outlet.h"
#include "platform/uikit/UIImageView.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/UITextInput.h"

namespace leafund {

// The one update that a campaign can carry: a date, a text and a picture.
class UpdatePageVC : public UIViewController {
 public:
  std::optional<std::string> campaignSendingYou;  // list name
  std::optional<std::ptrdiff_t> campaignNum;      // position in that list
  std::shared_ptr<CampaignClass> campaign;

  Outlet<UILabel> test{this, "test"};  // shows the campaign's title
  Outlet<UIImageView> updateOneImage{this, "updateOneImage"};
  Outlet<UITextView> updateOneText{this, "updateOneText"};
  Outlet<UILabel> updateOneDate{this, "updateOneDate"};

  void viewDidLoad() override;

 private:
  void fetchUpdateImage(const std::string& address);
};

}  // namespace leafund
