#pragma once

#include "platform/uikit/UIViewController.h"

namespace leafund {

// Home: the screen that holds the tabs. What is on them is its scene's affair.
class TabBarVC : public UIViewController {
 public:
  void viewDidLoad() override;
};

}  // namespace leafund
