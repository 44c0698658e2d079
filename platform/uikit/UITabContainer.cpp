#include "platform/uikit/UITabContainer.h"

#include <algorithm>
#include <utility>

#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UIViewController.h"

namespace leafund {

void UITabBarItemAppearance::setTitleTextAttributesForState(const UIColor& foregroundColor,
                                                            unsigned state) {
  if (state == UIControlStateSelected) selectedTitleColor_ = foregroundColor;
}

UITabBarItemAppearance& UITabBarItem::appearance() {
  static UITabBarItemAppearance appearance;
  return appearance;
}

UITabBarItem::UITabBarItem(std::string title)
    : title_(std::move(title)), selectedTitleColor_(appearance().selectedTitleColor()) {}

void UITabBarItem::setSelected(bool selected) {
  selected_ = selected;
  changed();
}

UITabBarAppearance& UITabBar::appearance() {
  static UITabBarAppearance appearance;
  return appearance;
}

UITabBar::UITabBar() : tintColor_(appearance().tintColor()) {}

UITabContainer::UITabContainer(UIViewController& owner)
    : owner_(owner), tabBar_(std::make_shared<UITabBar>()) {
  addSubview(tabBar_);
}

void UITabContainer::addTab(const std::shared_ptr<UITabBarItem>& item, std::string sceneName) {
  const std::size_t index = tabs_.size();
  item->addAction("", UIControlEvent::TouchUpInside,
                  [this, index](const Sender&) { selectByUser(index); });
  tabBar_->addSubview(item);
  tabs_.push_back({item, std::move(sceneName)});
  if (index == 0) select(0);
}

void UITabContainer::addButtonOnTab(const std::string& tabName,
                                    const std::shared_ptr<UIView>& button) {
  buttons_.emplace_back(tabName, button);
  showButtons();
}

void UITabContainer::showButtons() {
  for (const auto& [tabName, weakButton] : buttons_) {
    if (const auto button = weakButton.lock()) {
      button->setHidden(tabs_[selected_].item->name() != tabName);
    }
  }
}

void UITabContainer::selectByUser(std::size_t index) {
  if (index == selected_) return;
  select(index);
  shown_->view();
  // Through the stack, because a tab without a title gives its screen the room of the bar.
  if (const auto navigation = owner_.navigationController()) navigation->layOutShown();
  shown_->viewWillAppear(false);
  if (auto* application = UIApplication::current()) application->noteStackChanged();
}

void UITabContainer::select(std::size_t index) {
  if (shown_ && shown_->viewIfLoaded()) shown_->viewIfLoaded()->removeFromSuperview();
  tabs_[selected_].item->setSelected(false);
  selected_ = index;
  tabs_[selected_].item->setSelected(true);
  shown_ = owner_.childOfScene(tabs_[index].sceneName);
  showButtons();
}

void UITabContainer::layOut() {
  const auto root = owner_.view()->frame();
  setFrame({0, 0, root.width, root.height});
  const auto navigation = owner_.navigationController();
  const double rail = navigation ? std::min(navigation->railWidth(), root.width) : 0;
  CGRect room{rail, 0, root.width - rail, root.height};
  if (rail > 0) {
    tabBar_->setFrame({0, -root.y, rail, root.height + root.y});
  } else {
    room.height = std::max(0.0, root.height - UITabBar::kHeight);
    tabBar_->setFrame({0, room.height, root.width, UITabBar::kHeight});
  }
  const auto content = shown_->view();
  if (content->superview() != this) {
    addSubview(content);
    sendSubviewToBack(content);
  }
  content->setFrame(shown_->rootFrameIn(room));
  shown_->layOut();
}

}  // namespace leafund
