#include "interface/scenes/Scenes.h"
#include "screens/campaign/UpdatePageVC.h"

namespace leafund {

void updateScene(Scene<UpdatePageVC>& scene, UpdatePageVC& screen) {
  scene.title("Update");
  scene.label(screen.test);
  scene.label(screen.updateOneDate);
  scene.picture(screen.updateOneImage, UIViewContentMode::ScaleAspectFill)
      .setAccessibilityLabel("Picture of the update");
  scene.readingText(screen.updateOneText);
}

}  // namespace leafund
