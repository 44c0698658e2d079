#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/uikit/UILabel.h"
#include "shell/Storyboard.h"
#include "tests/support/ViewNamed.h"

namespace leafund {

// A screen of the application's own storyboard, not yet loaded.
template <class Screen>
std::shared_ptr<Screen> makeScreen(std::string_view sceneName) {
  return std::dynamic_pointer_cast<Screen>(
      mainStoryboard().instantiateViewControllerWithIdentifier(sceneName));
}

// What a label says by its scene, before logic writes to it.
inline std::string sceneText(std::string_view sceneName, std::string_view label) {
  const auto screen = mainStoryboard().draft(sceneName);
  return dynamic_cast<const UILabel&>(*descendant(*screen->view(), label)).text();
}

// A screen that writes its segues down instead of performing them. The scene is built by the
// application's own description of it.
template <class Screen>
class Recording : public Screen {
 public:
  std::vector<std::string> segues;
  Sender lastSender;
  std::function<void()> onSegue = [] {};  // what stands at that moment

  void performSegueWithIdentifierSender(std::string_view identifier,
                                        const Sender& sender) override {
    segues.emplace_back(identifier);
    lastSender = sender;
    onSegue();
  }
};

// A storyboard like the application's, in which the named scene's screen is another class.
inline UIStoryboard storyboardWith(const std::string& sceneName,
                                   std::function<std::shared_ptr<UIViewController>()> make,
                                   const std::string& initial = "LandingPageVC") {
  auto scenes = mainStoryboard().scenes();
  for (auto& scene : scenes) {
    if (scene.name == sceneName) scene.make = make;
  }
  return UIStoryboard(initial, std::move(scenes), mainStoryboard().segues());
}

// A recording screen with its storyboard, which must outlive it.
template <class Screen>
struct RecordedScreen {
  explicit RecordedScreen(const std::string& sceneName)
      : storyboard(storyboardWith(sceneName, [] { return std::make_shared<Recording<Screen>>(); })),
        screen(std::static_pointer_cast<Recording<Screen>>(
            storyboard.instantiateViewControllerWithIdentifier(sceneName))) {}
  RecordedScreen(const RecordedScreen&) = delete;
  RecordedScreen& operator=(const RecordedScreen&) = delete;
  // A screen that sent a segue names itself, and would keep itself alive.
  ~RecordedScreen() {
    if (screen) screen->lastSender = nullptr;
  }
  Recording<Screen>* operator->() const { return screen.get(); }

  UIStoryboard storyboard;
  std::shared_ptr<Recording<Screen>> screen;
};

}  // namespace leafund
