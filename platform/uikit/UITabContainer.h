#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/graphics/UIColor.h"
#include "platform/uikit/UIControl.h"

namespace leafund {

class UITabContainer;
class UIViewController;

constexpr unsigned UIControlStateSelected = 4;

// The settings that every tab item made later takes over.
class UITabBarItemAppearance {
 public:
  // Only the selected state can be given a colour; other states keep the toolkit's.
  void setTitleTextAttributesForState(const UIColor& foregroundColor, unsigned state);
  const std::optional<UIColor>& selectedTitleColor() const { return selectedTitleColor_; }

 private:
  std::optional<UIColor> selectedTitleColor_;
};

// One tab: its title, whether it is selected, and in which colour its title is drawn then.
class UITabBarItem : public UIControl {
 public:
  ViewKind kind() const override { return ViewKind::Tab; }
  static UITabBarItemAppearance& appearance();

  explicit UITabBarItem(std::string title);
  const std::string& title() const { return title_; }
  bool selected() const { return selected_; }
  const std::optional<UIColor>& selectedTitleColor() const { return selectedTitleColor_; }

 private:
  friend class UITabContainer;
  void setSelected(bool selected);

  std::string title_;
  std::optional<UIColor> selectedTitleColor_;
  bool selected_ = false;
};

// The settings that every tab bar made later takes over.
class UITabBarAppearance {
 public:
  void setTintColor(const UIColor& color) { tintColor_ = color; }
  const std::optional<UIColor>& tintColor() const { return tintColor_; }

 private:
  std::optional<UIColor> tintColor_;
};

// The bar that holds the tab items.
class UITabBar : public UIView {
 public:
  ViewKind kind() const override { return ViewKind::TabBar; }
  static constexpr double kHeight = 64;  // points, where it is no rail
  static UITabBarAppearance& appearance();

  UITabBar();
  // The colour of the selected item's icon.
  const std::optional<UIColor>& tintColor() const { return tintColor_; }

 private:
  std::optional<UIColor> tintColor_;
};

// The tabs of a screen and the selected tab's screen: above the bar, or beside it where the stack
// says that it stands as a rail at the window's side, from the window's top to its foot. That
// screen is made when its tab is first selected, and kept by the screen that holds the tabs.
class UITabContainer : public UIView {
 public:
  explicit UITabContainer(UIViewController& owner);

  void addTab(const std::shared_ptr<UITabBarItem>& item, std::string sceneName);
  // The button is hidden while another tab is selected; an unknown tab hides it for good.
  void addButtonOnTab(const std::string& tabName, const std::shared_ptr<UIView>& button);
  const std::shared_ptr<UITabBar>& tabBar() const { return tabBar_; }
  // Null before the first tab is there.
  const std::shared_ptr<UIViewController>& selectedViewController() const { return shown_; }

  // Fills the owner's root view.
  void layOut();

 private:
  struct Tab {
    std::shared_ptr<UITabBarItem> item;
    std::string sceneName;
  };
  // One appearance of the tab's screen; none when the tab is selected already.
  void selectByUser(std::size_t index);
  void select(std::size_t index);
  void showButtons();

  UIViewController& owner_;
  std::shared_ptr<UITabBar> tabBar_;
  std::vector<Tab> tabs_;
  std::vector<std::pair<std::string, std::weak_ptr<UIView>>> buttons_;  // by the tab's name
  std::size_t selected_ = 0;
  std::shared_ptr<UIViewController> shown_;
};

}  // namespace leafund
