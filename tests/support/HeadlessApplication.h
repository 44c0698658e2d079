#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/headless/HeadlessHost.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UINavigationController.h"
#include "shell/AppDelegate.h"
#include "shell/Storyboard.h"

namespace leafund {

// The whole application on the headless host, launched. Views are named as in their scenes; looking
// one up that is not on the screen shown fails the test.
class HeadlessApplication {
 public:
  explicit HeadlessApplication(const UIStoryboard& storyboard = mainStoryboard(),
                               CGSize size = {390, 844});

  HeadlessHost host;
  std::shared_ptr<AppDelegate> delegate = std::make_shared<AppDelegate>();
  std::shared_ptr<UIApplication> application;

  UINavigationController& navigation() { return *application->navigation(); }
  // The topmost screen, or the selected tab's when it holds tabs.
  std::shared_ptr<UIViewController> shown();
  template <class Screen>
  std::shared_ptr<Screen> shownAs() {
    return std::dynamic_pointer_cast<Screen>(shown());
  }
  std::vector<std::string> stack();

  std::shared_ptr<UIView> view(std::string_view name);
  template <class View>
  std::shared_ptr<View> viewAs(std::string_view name) {
    return std::dynamic_pointer_cast<View>(view(name));
  }
  std::string text(std::string_view name);
  // The titles of the rows shown, from the top.
  std::vector<std::string> rowTitles();

  void tap(std::string_view name) { application->tap(view(name)); }
  void type(std::string_view name, std::string text);
  void tapRow(std::ptrdiff_t row);
  void scroll(double offset);

  // The way home, as a user goes it.
  void signIn();
};

}  // namespace leafund
