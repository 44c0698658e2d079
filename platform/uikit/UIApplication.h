#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Host.h"
#include "platform/graphics/Geometry.h"
#include "platform/uikit/UIStoryboard.h"
#include "platform/uikit/UITextInput.h"

namespace leafund {

class UINavigationController;
class UITableView;

// The application's one window: it keeps the stack of screens alive.
class UIWindow {
 public:
  explicit UIWindow(std::shared_ptr<UINavigationController> root) : root_(std::move(root)) {}

 private:
  std::shared_ptr<UINavigationController> root_;
};

using LaunchOptions = std::map<std::string, std::string>;

class UIApplicationDelegate {
 public:
  virtual ~UIApplicationDelegate() = default;
  virtual void setWindow(std::shared_ptr<UIWindow> window) = 0;
  virtual bool applicationDidFinishLaunchingWithOptions(
      UIApplication& application, const std::optional<LaunchOptions>& options) = 0;
  virtual void applicationWillResignActive(UIApplication& application) = 0;
  virtual void applicationDidEnterBackground(UIApplication& application) = 0;
  virtual void applicationWillEnterForeground(UIApplication& application) = 0;
  virtual void applicationDidBecomeActive(UIApplication& application) = 0;
  virtual void applicationWillTerminate(UIApplication& application) = 0;
};

// The running application: it launches, and everything that comes from outside goes through its
// turn.
//
// A turn: logic runs to its end, then tables lay out, then the host shows the stack, then the skins
// of changed views refresh; and all that again until nothing is left. What is raised meanwhile
// waits for the next round, so no skin hears anything in the middle of logic. A layout or a skin
// that never comes to rest is a mistake, but not one that a user should lose the window for: after
// 100 rounds the rest waits for the next pass of the host's loop, and debug builds say so on
// standard error. All on the main thread.
class UIApplication : public UIResponder {
 public:
  UIApplication(Host& host, const UIStoryboard& storyboard,
                std::shared_ptr<UIApplicationDelegate> delegate);
  ~UIApplication() override;

  // The one application; null before it is made.
  static UIApplication* current();

  // Once: makes the window, tells the delegate, and only then loads the first screen.
  void launch(const std::optional<LaunchOptions>& options = std::nullopt);
  void turn(std::function<void()> work);
  // A turn was given up before it came to rest. A host without a loop takes that for fatal.
  bool stalled() const { return !running_ && !settled(); }

  // What a user can do, each one turn. What is hidden, covered, out of sight or on its way out is
  // not reached. A view that is gone (null) is passed over. Of consecutive scrolls of one table
  // that wait only the latest counts, and of consecutive resizes; no other event passes them or is
  // passed.
  void tap(const std::shared_ptr<UIView>& view);
  void beginEditing(const std::shared_ptr<UITextInput>& input);
  void edit(const std::shared_ptr<UITextInput>& input, std::string text);
  void endEditing(const std::shared_ptr<UITextInput>& input);
  void pressReturn(const std::shared_ptr<UITextField>& field);
  // `placements` is the table's number that the user's item saw: a scroll of a place that is no
  // more is dropped.
  void scroll(const std::shared_ptr<UITableView>& table, double offset,
              std::optional<unsigned> placements = std::nullopt);
  // `railWidth` is how much of the width the host gives tabs at the side; 0 where they stand in a
  // bar at the foot.
  void resize(CGSize size, double railWidth = 0);
  void goBack();

  // What the system tells the application, each one turn.
  void resignActive();
  void enterBackground();
  void enterForeground();
  void becomeActive();
  void terminate();
  void receiveMemoryWarning();

  // Null before launch.
  const std::shared_ptr<UINavigationController>& navigation() const { return navigation_; }
  // The input being edited, or null.
  std::shared_ptr<UITextInput> firstResponder() const { return firstResponder_.lock(); }
  bool reachable(const UIView& view) const;

  // What views and screens tell of themselves, to be taken up in this turn.
  void noteChanged(UIView& view);
  void noteNeedsLayout(UIView& view);
  void noteStackChanged() { stackChanged_ = true; }
  void noteEditingEnded() { firstResponder_.reset(); }

 private:
  // Work that waits for its round. Of consecutive entries about the same thing the last one stays.
  struct Waiting {
    std::function<void()> work;
    const void* about = nullptr;
  };
  void add(Waiting waiting);
  bool settled() const;
  void run();
  void runRound();
  // The innermost screen in sight whose view holds that one, or null.
  std::shared_ptr<UIViewController> shownScreenOf(const UIView& view) const;
  void tapReached(const std::shared_ptr<UIView>& view);
  void tell(void (UIApplicationDelegate::*call)(UIApplication&));

  Host& host_;
  const UIStoryboard& storyboard_;
  std::shared_ptr<UIApplicationDelegate> delegate_;
  std::shared_ptr<UINavigationController> navigation_;
  std::weak_ptr<UITextInput> firstResponder_;
  CGSize size_;
  double railWidth_ = 0;
  std::deque<Waiting> pending_;
  std::vector<std::weak_ptr<UIResponder>> needLayout_;
  std::vector<std::weak_ptr<UIResponder>> changed_;
  bool stackChanged_ = false;
  bool running_ = false;
  bool resuming_ = false;  // the rest of a turn that was given up waits for the host's loop
};

// Makes the delegate of the named class and the application, and hands control to the host. Answers
// what the host's loop returns: 0 when the window was closed. The principal class is always
// UIApplication, so its name stays empty.
int UIApplicationMain(int argc, char** argv, std::optional<std::string> principalClassName,
                      std::string_view delegateClassName, Host& host,
                      const UIStoryboard& storyboard);

using DelegateMaker = std::shared_ptr<UIApplicationDelegate> (*)();
void registerDelegateClass(std::string_view className, DelegateMaker make);

// The class's name; from then on the class can be made by it.
template <class Delegate>
std::string_view NSStringFromClass() {
  registerDelegateClass(Delegate::kClassName, []() -> std::shared_ptr<UIApplicationDelegate> {
    return std::make_shared<Delegate>();
  });
  return Delegate::kClassName;
}

}  // namespace leafund
