#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "platform/graphics/Geometry.h"
#include "platform/uikit/UIViewController.h"

namespace leafund {

// The stack of screens, the last one shown. It moves at once; what the window does to catch up is
// the host's. Never empty once it has its root.
class UINavigationController : public std::enable_shared_from_this<UINavigationController> {
 public:
  static constexpr double kBarHeight = 56;           // points
  static constexpr const char* kBackLabel = "Back";  // what a screen reader calls the way back

  const std::vector<std::shared_ptr<UIViewController>>& viewControllers() const { return stack_; }
  const std::shared_ptr<UIViewController>& topViewController() const { return stack_.back(); }

  void pushViewController(std::shared_ptr<UIViewController> controller);
  // Takes everything above the controller, which must be on the stack, away.
  void popToViewController(const std::shared_ptr<UIViewController>& controller);
  // The one way back for bar, key and gesture: refused at the root and where the back button is
  // hidden. Answers whether it went.
  bool goBack();
  bool canGoBack(const UIViewController& controller) const;

  // The nearest screen of that scene below the given one, or below the screen whose tab it is;
  // fatal when there is none.
  std::shared_ptr<UIViewController> nearestBelow(const UIViewController& controller,
                                                 std::string_view sceneName) const;

  // The bar's text for a screen on the stack: its own title or that of the child it shows. A screen
  // without a text has no bar.
  const std::string& barTitle(const UIViewController& controller) const;
  bool showsBar(const UIViewController& controller) const;

  // The window's size in points, and how much of its width tabs take that stand in a rail at its
  // side; 0 where they stand in a bar at its foot. The shown screen's root view follows at once,
  // the others when they appear.
  void setSize(CGSize size, double railWidth = 0);
  double railWidth() const { return railWidth_; }
  // Frames the shown screen's views: by the size, and by whether the screen has a bar.
  void layOutShown() const;
  // Where the root view of a screen lies while the screen is shown.
  CGRect rootFrame(const UIViewController& controller) const;

 private:
  void appear(bool animated);

  std::vector<std::shared_ptr<UIViewController>> stack_;
  CGSize size_;
  double railWidth_ = 0;
};

}  // namespace leafund
