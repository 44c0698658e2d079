#pragma once

#include <optional>
#include <string>

#include "platform/uikit/Outlet.h"
#include "platform/uikit/UIButton.h"
#include "platform/uikit/UILabel.h"

namespace leafund {

// The end of both flows: thanks for a pledge, or for a new campaign.
class ThankYouVC : public UIViewController {
 public:
  std::optional<std::string> pageFrom;  // the class name of the screen that led here

  Outlet<UILabel> thankYouLabel{this, "thankYouLabel"};
  Outlet<UIButton> homeButton{this, "homeButton"};

  void viewDidLoad() override;

  void homeButtonClicked(const Sender& sender);
};

}  // namespace leafund
