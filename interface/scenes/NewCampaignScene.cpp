#include "interface/scenes/Scenes.h"
#include "screens/create/NewCampaignVC.h"

namespace leafund {

void newCampaignScene(Scene<NewCampaignVC>& scene, NewCampaignVC& screen) {
  scene.title("New campaign");
  const auto delegate = std::static_pointer_cast<NewCampaignVC>(screen.shared_from_this());
  scene.field(screen.nameOfCreator, {.placeholder = "Your name"}).setDelegate(delegate);
  scene.field(screen.nameOfCampaign, {.placeholder = "Campaign name"}).setDelegate(delegate);
  scene.textArea(screen.shortDescription, {.placeholder = "Your pitch in one sentence"});
  scene.textArea(screen.fullDescription, {.placeholder = "What you pledge, and for whom"});
  scene
      .field(screen.desiredFunding,
             {.placeholder = "Goal in dollars", .keyboard = UIKeyboardType::DecimalPad})
      .setDelegate(delegate);
  scene.label(screen.moneyErrorField, "Error: Please Enter an Amount, for Example 250");
  scene
      .field(screen.imageURL,
             {.placeholder = "Web address of a picture", .keyboard = UIKeyboardType::URL})
      .setDelegate(delegate);
  scene.textArea(screen.emailInvite, {.placeholder = "E-mail addresses of friends to invite",
                                      .keyboard = UIKeyboardType::EmailAddress});
  auto& create = scene.button(screen.createButton, "Create campaign");
  scene.on(create, UIControlEvent::TouchUpInside,
           "createButtonClicked:", &NewCampaignVC::createButtonClicked);
}

}  // namespace leafund
