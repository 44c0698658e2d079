#include "interface/scenes/Scenes.h"
#include "screens/campaign/ConfirmPageVC.h"

namespace leafund {

void confirmScene(Scene<ConfirmPageVC>& scene, ConfirmPageVC& screen) {
  scene.title("Confirm your pledge");
  scene.words("question", "Do you want to fund this campaign?");
  scene.words("outcome", "Your pledge counts at once, and you find the campaign under Funded.");
  auto& yes = scene.button(screen.yesButton, "Yes");
  scene.on(yes, UIControlEvent::TouchUpInside, "yesClicked:", &ConfirmPageVC::yesClicked);
  auto& no = scene.button(screen.noButton, "No");
  scene.on(no, UIControlEvent::TouchUpInside, "noClicked:", &ConfirmPageVC::noClicked);
}

}  // namespace leafund
