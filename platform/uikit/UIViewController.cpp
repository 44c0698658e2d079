#include "platform/uikit/UIViewController.h"

#include <algorithm>
#include <utility>

#include "platform/foundation/FatalError.h"
#include "platform/uikit/Outlet.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UIStoryboard.h"
#include "platform/uikit/UITabContainer.h"

namespace leafund {

void UINavigationItem::setTitle(std::string title) {
  title_ = std::move(title);
  if (auto* application = UIApplication::current()) application->noteStackChanged();
}

void UINavigationItem::setHidesBackButton(bool hides) {
  hidesBackButton_ = hides;
  if (auto* application = UIApplication::current()) application->noteStackChanged();
}

UIViewController::UIViewController() = default;

UIViewController::~UIViewController() {
  for (const auto& child : children_) child->parent_ = nullptr;
}

void UIViewController::viewWillAppear(bool) {}

void UIViewController::prepareForSegueSender(UIStoryboardSegue&, const Sender&) {}

void UIViewController::performSegueWithIdentifierSender(std::string_view identifier,
                                                        const Sender& sender) {
  if (storyboard_ == nullptr) fatalError(className_, "performs a segue outside a storyboard");
  storyboard_->perform(storyboard_->segue(className_, identifier), shared(this), sender);
}

const std::shared_ptr<UIView>& UIViewController::view() {
  if (view_) return view_;
  buildView();
  viewDidLoad();
  return view_;
}

void UIViewController::buildView() {
  view_ = makeRootView();
  if (scene_ != nullptr) scene_->build(*this);
}

void UIViewController::releaseView() { view_.reset(); }

std::shared_ptr<UIView> UIViewController::makeRootView() { return std::make_shared<UIView>(); }

std::shared_ptr<UINavigationController> UIViewController::navigationController() const {
  return parent_ != nullptr ? parent_->navigationController() : navigation_.lock();
}

std::shared_ptr<UIViewController> UIViewController::shownChild() const {
  const auto tabs = tabContainer_.lock();
  return tabs ? tabs->selectedViewController() : nullptr;
}

void UIViewController::appear(bool animated) {
  viewWillAppear(animated);
  if (const auto child = shownChild()) child->appear(animated);
}

// The views inside get their frames from the root view's, which is set.
void UIViewController::layOut() {
  if (const auto tabs = tabContainer_.lock()) tabs->layOut();
  viewDidLayoutSubviews();
}

const std::shared_ptr<UIViewController>& UIViewController::childOfScene(
    const std::string& sceneName) {
  const auto found = std::find_if(children_.begin(), children_.end(), [&](const auto& child) {
    return child->className() == sceneName;
  });
  if (found != children_.end()) return *found;
  children_.push_back(storyboard_->instantiateViewControllerWithIdentifier(sceneName));
  children_.back()->parent_ = this;
  return children_.back();
}

std::vector<std::string> UIViewController::unconnectedOutlets() const {
  std::vector<std::string> names;
  for (const auto* outlet : outlets_) {
    if (!outlet->connected()) names.push_back(outlet->name());
  }
  return names;
}

}  // namespace leafund
