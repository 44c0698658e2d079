#include "screens/campaign/UpdatePageVC.h"

#include "model/PictureHost.h"
#include "platform/foundation/FatalError.h"
#include "screens/CampaignLookup.h"
#include "screens/lists/PictureFetch.h"

namespace leafund {

void UpdatePageVC::viewDidLoad() {
  if (auto found = campaignIn(campaignSendingYou, campaignNum, className())) {
    campaign = std::move(found);
  }
  if (!campaign) fatalError(className(), "there is no campaign to show");
  test->setText(campaign->title());
  // The text alone tells whether there is an update; date and picture are not asked.
  if (!campaign->updateOneText().empty()) {
    updateOneDate->setText(campaign->updateOneDate());
    updateOneText->setText(campaign->updateOneText());
    fetchUpdateImage(campaign->updateOnePhoto());
  } else {
    updateOneText->setText("No updates have been made yet!");
    updateOneDate->setText("");
    fetchUpdateImage(placeholderPictureAddress());
  }
  // Last: everything shown is in place before the base class comes in.
  UIViewController::viewDidLoad();
}

void UpdatePageVC::fetchUpdateImage(const std::string& address) {
  fetchPicture(address, className(), [screen = shared(this)](const NSData& body) {
    screen->updateOneImage->setImage(UIImage::initWithData(body));
  });
}

}  // namespace leafund
