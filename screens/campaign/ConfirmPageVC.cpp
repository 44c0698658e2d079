#include "screens/campaign/ConfirmPageVC.h"

#include "platform/foundation/Diagnostics.h"
#include "platform/foundation/FatalError.h"
#include "platform/uikit/UIStoryboard.h"
#include "screens/CampaignLookup.h"
#include "screens/campaign/ThankYouVC.h"

namespace leafund {

void ConfirmPageVC::viewDidLoad() {
  writeDiagnosticLine(positionText(campaignNum));
  campaign = campaignAt(otherCampaigns(), campaignNum, className());
  UIViewController::viewDidLoad();
  // Out of here only by yes or no.
  navigationItem().setHidesBackButton(true);
}

void ConfirmPageVC::yesClicked(const Sender&) {
  if (campaign) raiseFunding();
  // Whether or not the goal was reached: a campaign funded once leaves the browse list for good.
  auto& others = otherCampaigns();
  campaignAt(others, campaignNum, className());
  others.erase(others.begin() + *campaignNum);
  if (!campaign) fatalError(className(), "there is no campaign to fund");
  // Also when it stands in the list already: every pledge is the most recent one.
  auto& funded = campaignsIFunded();
  funded.insert(funded.begin(), campaign);
  performSegueWithIdentifierSender("yesSegue", shared(this));
}

void ConfirmPageVC::raiseFunding() {
  if (!dollarsDonated) fatalError(className(), "no amount was given");
  const float sum = campaign->currFunding() + *dollarsDonated;
  // Not std::min: a sum that is not a number is not below the goal, and stores the goal. A negative
  // amount lowers what was raised, without a floor.
  campaign->setCurrFunding(sum < campaign->totalFunding() ? sum : campaign->totalFunding());
}

void ConfirmPageVC::noClicked(const Sender&) {
  performSegueWithIdentifierSender("noSegue", shared(this));
}

void ConfirmPageVC::prepareForSegueSender(UIStoryboardSegue& segue, const Sender&) {
  const auto& destination = segue.destinationViewController();
  if (const auto thanks = std::dynamic_pointer_cast<ThankYouVC>(destination)) {
    thanks->pageFrom = "ConfirmPageVC";
  }
}

}  // namespace leafund
