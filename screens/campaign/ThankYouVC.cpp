#include "screens/campaign/ThankYouVC.h"

namespace leafund {

void ThankYouVC::viewDidLoad() {
  UIViewController::viewDidLoad();
  // A finished flow is not entered again backwards.
  navigationItem().setHidesBackButton(true);
  if (pageFrom == "NewCampaignVC") thankYouLabel->setText("Thank you for creating a campaign!");
}

void ThankYouVC::homeButtonClicked(const Sender&) {
  performSegueWithIdentifierSender("homeSegue", shared(this));
}

}  // namespace leafund
