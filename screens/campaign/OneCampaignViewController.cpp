#include "screens/campaign/OneCampaignViewController.h"

#include "platform/foundation/AmountText.h"
#include "platform/foundation/Diagnostics.h"
#include "platform/foundation/FatalError.h"
#include "platform/uikit/UIStoryboard.h"
#include "screens/CampaignLookup.h"
#include "screens/campaign/ConfirmPageVC.h"
#include "screens/campaign/UpdatePageVC.h"
#include "screens/lists/PictureFetch.h"

namespace leafund {

void OneCampaignViewController::viewDidLoad() {
  writeDiagnosticLine(positionText(campaignNum));
  if (auto found = campaignIn(campaignSendingYou, campaignNum, className())) {
    campaign = std::move(found);
  }
  campaignUpdates->setHidden(true);
  errorLabel->setHidden(true);
  showFundedState();
  // In the middle: the base class comes in once it is settled which parts are seen.
  UIViewController::viewDidLoad();
  showSums();
  frameTextAndPicture();
  // Only other people's campaigns can be funded from here.
  if (campaignSendingYou != "otherCampaigns") {
    FundButton->setHidden(true);
    dollarAmountField->setHidden(true);
  }
  fetchCampaignImage();
}

void OneCampaignViewController::showFundedState() {
  // Without a campaign both sums are absent, and absent equals absent: that counts as funded.
  const auto raised = campaign ? std::optional(campaign->currFunding()) : std::nullopt;
  const auto goal = campaign ? std::optional(campaign->totalFunding()) : std::nullopt;
  if (raised != goal) return;
  campaignUpdates->setHidden(false);
  slider->setHidden(true);
  desiredFund->setHidden(true);
  currentFund->setHidden(true);
  labelAboveSlider->setText("Funded!");
}

void OneCampaignViewController::showSums() {
  // Two steps, so that the bar is seen to fill.
  slider->setProgressAnimated(0.0F, true);
  if (!campaign) fatalError(className(), "there is no campaign to show");
  // A goal of 0 gives an infinite share or none; the bar takes it as it is.
  slider->setProgressAnimated(campaign->currFunding() / campaign->totalFunding(), true);
  desiredFund->setText(dollarText(campaign->totalFunding()));
  currentFund->setText(dollarText(campaign->currFunding()));
  campaignTitle->setText(campaign->title());
  campaignCreator->setText(campaign->creator());
  campaignText->setText(campaign->campaignDescription());
}

void OneCampaignViewController::frameTextAndPicture() {
  auto& textLayer = campaignText->layer();
  textLayer.setBorderWidth(1.0);
  textLayer.setBorderColor(UIColor::blackColor().CGColor());
  campaignText->scrollRangeToVisible({0, 1});

  const auto picture = campaignImage.get();
  auto& layer = picture->layer();
  layer.setBorderColor(UIColor::blackColor().CGColor());
  layer.setBorderWidth(0.5);
  layer.setCornerRadius(65.0);
  picture->setClipsToBounds(true);
}

void OneCampaignViewController::fetchCampaignImage() {
  // The fetch keeps the screen until it ends, also when the user has left.
  fetchPicture(campaign->photo(), className(), [screen = shared(this)](const NSData& body) {
    screen->campaignImage->setImage(UIImage::initWithData(body));
  });
}

void OneCampaignViewController::ButtonClicked(const Sender&) {
  const auto amount = amountFromText(dollarAmountField->text());
  if (!amount) {
    // The label keeps whatever it said last; only too large an amount writes a text of its own.
    errorLabel->setHidden(false);
    return;
  }
  dollarsDonated = *amount;  // also when it is refused below
  const float remaining = campaign->totalFunding() - campaign->currFunding();
  if (remaining < *amount) {
    errorLabel->setText("Error: Donation Exceeds Maximum");
    errorLabel->setHidden(false);
    return;
  }
  // No lower bound, and what is not a number compares with nothing: both go on to confirmation.
  performSegueWithIdentifierSender("campaignFundedSegue", shared(this));
}

void OneCampaignViewController::campaignUpdatesClicked(const Sender&) {
  performSegueWithIdentifierSender("updatesSegue", shared(this));
}

void OneCampaignViewController::prepareForSegueSender(UIStoryboardSegue& segue, const Sender&) {
  const auto& destination = segue.destinationViewController();
  if (const auto update = std::dynamic_pointer_cast<UpdatePageVC>(destination)) {
    update->campaignNum = campaignNum;
    update->campaignSendingYou = campaignSendingYou;
  }
  if (const auto confirm = std::dynamic_pointer_cast<ConfirmPageVC>(destination)) {
    confirm->dollarsDonated = dollarsDonated;
    confirm->campaignNum = campaignNum;
  }
}

}  // namespace leafund
