#include "platform/uikit/UIStoryboard.h"

#include <algorithm>
#include <utility>

#include "platform/foundation/FatalError.h"
#include "platform/uikit/UINavigationController.h"

namespace leafund {

UIStoryboard::UIStoryboard(std::string initialScene, std::vector<SceneDescription> scenes,
                           std::vector<SegueDescription> segues)
    : initialScene_(std::move(initialScene)),
      scenes_(std::move(scenes)),
      segues_(std::move(segues)) {}

std::shared_ptr<UIViewController> UIStoryboard::instantiateInitialViewController() const {
  return instantiateViewControllerWithIdentifier(initialScene_);
}

std::shared_ptr<UIViewController> UIStoryboard::instantiateViewControllerWithIdentifier(
    std::string_view sceneName) const {
  const auto scene = std::find_if(scenes_.begin(), scenes_.end(),
                                  [&](const auto& each) { return each.name == sceneName; });
  if (scene == scenes_.end()) {
    fatalError("storyboard", "there is no scene named " + std::string(sceneName));
  }
  auto controller = scene->make();
  controller->className_ = scene->name;
  controller->storyboard_ = this;
  controller->scene_ = &*scene;
  return controller;
}

std::shared_ptr<UIViewController> UIStoryboard::draft(std::string_view sceneName) const {
  auto controller = instantiateViewControllerWithIdentifier(sceneName);
  controller->buildView();
  return controller;
}

std::vector<std::string> UIStoryboard::scenesAfter(std::string_view sceneName) const {
  std::vector<std::string> scenes;
  for (const auto& segue : segues_) {
    if (segue.source == sceneName && segue.kind == SegueKind::Push) {
      scenes.push_back(segue.destination);
    }
  }
  return scenes;
}

const SegueDescription& UIStoryboard::segue(std::string_view source,
                                            std::string_view identifier) const {
  const auto found = std::find_if(segues_.begin(), segues_.end(), [&](const auto& each) {
    return each.source == source && each.identifier == identifier;
  });
  if (found == segues_.end()) {
    fatalError(source, "no segue named " + std::string(identifier) + " leaves this screen");
  }
  return *found;
}

void UIStoryboard::perform(const SegueDescription& description,
                           const std::shared_ptr<UIViewController>& source,
                           const Sender& sender) const {
  const auto navigation = source->navigationController();
  if (!navigation) fatalError(source->className(), "performs a segue outside a navigation stack");
  const bool pushes = description.kind == SegueKind::Push;
  auto destination = pushes ? instantiateViewControllerWithIdentifier(description.destination)
                            : navigation->nearestBelow(*source, description.destination);
  UIStoryboardSegue segue(description.identifier, destination);
  source->prepareForSegueSender(segue, sender);
  if (pushes) {
    navigation->pushViewController(std::move(destination));
  } else {
    navigation->popToViewController(destination);
  }
}

}  // namespace leafund
