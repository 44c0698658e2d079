#include "interface/scenes/Scenes.h"
#include "screens/campaign/ThankYouVC.h"

namespace leafund {

void thankYouScene(Scene<ThankYouVC>& scene, ThankYouVC& screen) {
  scene.label(screen.thankYouLabel, "Thank you for your pledge!");
  auto& home = scene.button(screen.homeButton, "Home");
  scene.on(home, UIControlEvent::TouchUpInside,
           "homeButtonClicked:", &ThankYouVC::homeButtonClicked);
}

}  // namespace leafund
