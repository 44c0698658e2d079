#include "platform/uikit/UINavigationController.h"

#include <algorithm>
#include <utility>

#include "platform/foundation/FatalError.h"
#include "platform/uikit/UIApplication.h"

namespace leafund {

void UINavigationController::pushViewController(std::shared_ptr<UIViewController> controller) {
  controller->navigation_ = weak_from_this();
  const bool animated = !stack_.empty();
  stack_.push_back(std::move(controller));
  appear(animated);
}

void UINavigationController::popToViewController(
    const std::shared_ptr<UIViewController>& controller) {
  const auto above = std::next(std::find(stack_.begin(), stack_.end(), controller));
  std::for_each(above, stack_.end(), [](const auto& leaving) { leaving->navigation_.reset(); });
  stack_.erase(above, stack_.end());
  appear(true);
}

bool UINavigationController::goBack() {
  if (!canGoBack(*topViewController())) return false;
  popToViewController(stack_[stack_.size() - 2]);
  return true;
}

bool UINavigationController::canGoBack(const UIViewController& controller) const {
  return stack_.size() > 1 && stack_.front().get() != &controller &&
         !controller.navigationItem().hidesBackButton();
}

std::shared_ptr<UIViewController> UINavigationController::nearestBelow(
    const UIViewController& controller, std::string_view sceneName) const {
  const auto* standing = &controller;  // itself or, for a tab's screen, the one that holds the tabs
  while (standing->parentViewController() != nullptr) standing = standing->parentViewController();
  const auto self = std::find_if(stack_.rbegin(), stack_.rend(),
                                 [&](const auto& each) { return each.get() == standing; });
  const auto found = self == stack_.rend()
                         ? self
                         : std::find_if(std::next(self), stack_.rend(), [&](const auto& each) {
                             return each->className() == sceneName;
                           });
  if (found == stack_.rend()) {
    fatalError(controller.className(), "no " + std::string(sceneName) + " stands below");
  }
  return *found;
}

const std::string& UINavigationController::barTitle(const UIViewController& controller) const {
  const auto* screen = &controller;
  while (const auto child = screen->shownChild()) screen = child.get();  // its parent keeps it
  return screen->navigationItem().title();
}

bool UINavigationController::showsBar(const UIViewController& controller) const {
  return !barTitle(controller).empty() || canGoBack(controller);
}

void UINavigationController::setSize(CGSize size, double railWidth) {
  size_ = size;
  railWidth_ = railWidth;
  if (!stack_.empty()) layOutShown();
}

void UINavigationController::appear(bool animated) {
  const auto top = topViewController();
  if (auto* application = UIApplication::current()) application->noteStackChanged();
  for (auto screen = top; screen != nullptr; screen = screen->shownChild()) screen->view();
  layOutShown();
  top->appear(animated);
}

void UINavigationController::layOutShown() const {
  const auto& top = topViewController();
  top->view()->setFrame(rootFrame(*top));
  top->layOut();
}

CGRect UINavigationController::rootFrame(const UIViewController& controller) const {
  const double bar = showsBar(controller) ? kBarHeight : 0;
  return controller.rootFrameIn({0, bar, size_.width, std::max(0.0, size_.height - bar)});
}

}  // namespace leafund
