#include "interface/scenes/Scenes.h"
#include "model/Catalogue.h"
#include "platform/foundation/AmountText.h"
#include "screens/campaign/ConfirmPageVC.h"

namespace leafund {

namespace {

// What the user is about to pledge, in words; each empty as long as the screen was not told. A
// position outside the list ends the process when the screen looks the campaign up, and not here.
std::string amountOf(const ConfirmPageVC& screen) {
  return screen.dollarsDonated ? dollarText(*screen.dollarsDonated) : "";
}

std::string campaignOf(const ConfirmPageVC& screen) {
  if (!screen.campaignNum) return "";
  const auto& campaigns = otherCampaigns();
  const auto position = static_cast<std::size_t>(*screen.campaignNum);
  return position < campaigns.size() ? campaigns[position]->title() : "";
}

}  // namespace

void confirmScene(Scene<ConfirmPageVC>& scene, ConfirmPageVC& screen) {
  scene.title("Confirm your pledge");
  for (auto* words : {&scene.words("amount", amountOf(screen)),
                      &scene.words("campaignName", campaignOf(screen))}) {
    words->setHidden(words->text().empty());
  }
  scene.words("question", "Do you want to fund this campaign?");
  scene.words("outcome", "Your pledge counts at once, and you find the campaign under Funded.");
  auto& yes = scene.button(screen.yesButton, "Yes");
  scene.on(yes, UIControlEvent::TouchUpInside, "yesClicked:", &ConfirmPageVC::yesClicked);
  auto& no = scene.button(screen.noButton, "No");
  scene.on(no, UIControlEvent::TouchUpInside, "noClicked:", &ConfirmPageVC::noClicked);
}

}  // namespace leafund
