#include "shell/AppDelegate.h"

#include "platform/uikit/UITabContainer.h"

namespace leafund {

namespace {

UIColor accentColor() {
  return UIColor::initWithRedGreenBlueAlpha(83.0 / 255, 134.0 / 255, 47.0 / 255, 1.0);
}

}  // namespace

bool AppDelegate::applicationDidFinishLaunchingWithOptions(UIApplication&,
                                                           const std::optional<LaunchOptions>&) {
  // Before any tab bar exists, so that every one made later shows it.
  UITabBarItem::appearance().setTitleTextAttributesForState(accentColor(), UIControlStateSelected);
  UITabBar::appearance().setTintColor(accentColor());
  return true;
}

}  // namespace leafund
