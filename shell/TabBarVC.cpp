#include "shell/TabBarVC.h"

namespace leafund {

void TabBarVC::viewDidLoad() {
  UIViewController::viewDidLoad();
  // Nobody steps back to the screen that signed them in.
  navigationItem().setHidesBackButton(true);
}

}  // namespace leafund
