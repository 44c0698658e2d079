#include "interface/scenes/Scenes.h"
#include "screens/campaign/OneCampaignViewController.h"

namespace leafund {

void campaignScene(Scene<OneCampaignViewController>& scene, OneCampaignViewController& screen) {
  scene.title("Campaign");
  scene.picture(screen.campaignImage, UIViewContentMode::ScaleAspectFill)
      .setAccessibilityLabel("Picture of the campaign");
  scene.label(screen.campaignTitle);
  scene.words("byCreator", "by");
  scene.label(screen.campaignCreator);

  scene.label(screen.labelAboveSlider, "Raised so far");
  scene.progress(screen.slider, "Share of the goal raised");
  // Who sees them takes what they are from where they stand.
  scene.label(screen.currentFund).setAccessibilityLabel("Raised");
  scene.label(screen.desiredFund).setAccessibilityLabel("Goal");

  scene.field(screen.dollarAmountField,
              {.placeholder = "Amount in dollars", .keyboard = UIKeyboardType::DecimalPad});
  scene.label(screen.errorLabel, "Error: Please Enter an Amount, for Example 25 or 12.50");
  auto& fund = scene.button(screen.FundButton, "Fund this campaign");
  scene.on(fund, UIControlEvent::TouchUpInside,
           "ButtonClicked:", &OneCampaignViewController::ButtonClicked);
  auto& updates = scene.button(screen.campaignUpdates, "Read the update");
  scene.on(updates, UIControlEvent::TouchUpInside,
           "campaignUpdatesClicked:", &OneCampaignViewController::campaignUpdatesClicked);

  scene.words("about", "About this campaign");
  scene.readingText(screen.campaignText);

  // Outlets that no logic uses.
  scene.unseen(screen.campaignPhoto);
  scene.unseen(screen.campaignDescription);
}

}  // namespace leafund
