#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/qt/QtHost.h"
#include "platform/qt/QtWindow.h"
#include "tests/random/AppUnderTest.h"
#include "tests/random/WayIn.h"

namespace leafund::random {

// The real host of the window, but for pictures: those are answered when an action says so.
class WindowHost final : public PromptHost {
 public:
  // A press is a long one after so many milliseconds, real ones, and this user spends few of them.
  static constexpr int kLongPress = 50;

  WindowHost();

  int run(UIApplication& application) override;
  void show(const UINavigationController& navigation) override { qt_.show(navigation); }
  // What a transfer left waiting goes to the window's own main queue, as one step.
  void drain() override;

  QtHost& qt() { return qt_; }
  std::function<void()> onStep = [] {};

 private:
  QtHost qt_;
};

// The application in its real window. Every user event that reaches it from there is told as an
// action, for the reference to do the same.
class WindowUnderTest : public AppUnderTest, private WayInListener {
 public:
  // `follow` is called with an action before the application takes it up, `check` when a turn is
  // over.
  WindowUnderTest(std::function<void(const Action&)> follow, std::function<void()> check);
  ~WindowUnderTest() override { close(); }

  QtWindow& window() { return *host_.qt().window(); }
  // The topmost screen's item; null when there is not exactly one that takes input.
  QQuickItem* page();
  // Where the window differs from what the toolkit holds; empty where it does not.
  std::string disagreement();
  // The same of what must hold once nothing moves.
  std::string unrest();
  // The actions told since the last call.
  std::vector<Action> takeArrived() { return std::exchange(arrived_, {}); }

  // Mistakes, to prove that they are noticed: each fifth tap is kept from the application, and a
  // button is not seen any more.
  void loseTaps() { losesTaps_ = true; }
  void hideButton();

  // Closes the window and ends the application; answers how many screens outlive that.
  std::size_t close();

 private:
  WindowUnderTest(std::unique_ptr<WindowHost> host, std::function<void(const Action&)> follow,
                  std::function<void()> check);
  bool arrives(const UserEvent& event) override;
  void turnIsOver() override { check_(); }
  void tell(const Action& action);
  Action asAction(const UserEvent& event);

  WindowHost& host_;
  std::function<void(const Action&)> follow_;
  std::function<void()> check_;
  std::vector<Action> arrived_;
  bool losesTaps_ = false;
  int taps_ = 0;
};

// Whether a pane is on its way. Thrown within one frame it never moves by Qt's word, and flicks.
bool isOnItsWay(const QQuickItem& item);

}  // namespace leafund::random
