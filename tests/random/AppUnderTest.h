#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/uikit/UIApplication.h"
#include "shell/AppDelegate.h"
#include "tests/random/Action.h"
#include "tests/random/PromptHost.h"
#include "tests/random/Sheet.h"

namespace leafund {
class UITableViewCell;
class UITableView;
class UIViewController;
}  // namespace leafund

namespace leafund::random {

// The application itself, made to do the same actions as the reference and to tell the same facts.
class AppUnderTest {
 public:
  AppUnderTest(double width, double height,
               std::unique_ptr<PromptHost> host = std::make_unique<PromptHost>());
  virtual ~AppUnderTest();

  void perform(const Action& action);
  void describe(Sheet& sheet);

  // A change that no action asked for, to prove that the comparison notices it.
  void tamper();
  // Everything is let go, transfers under way included; answers how many screens outlive that.
  std::size_t end();

  UIApplication& application() { return *application_; }
  PromptHost& host() { return *host_; }
  // The selected tab's, or null.
  std::shared_ptr<UITableView> table() const;

 private:
  std::shared_ptr<UIView> find(const std::string& name) const;
  std::shared_ptr<UITextInput> input(const std::string& name) const;
  std::shared_ptr<UIView> row(long number) const;
  void tapBoth(const Action& action);
  void performOnHeld(const Action& action);
  void endTransfer(std::size_t at, const Action& action, double width);
  void answerAll(const Action& action);
  void tell(long news);
  void askEmailRule(const std::string& text);
  std::size_t screensAlive();

  std::unique_ptr<PromptHost> host_;
  std::shared_ptr<AppDelegate> delegate_ = std::make_shared<AppDelegate>();
  std::shared_ptr<UIApplication> application_;
  std::shared_ptr<UIView> held_;
  std::vector<std::weak_ptr<UIViewController>> everSeen_;
  std::string emailAnswer_;
};

// The words of a screen whose logic has not run.
SceneWords wordsOf(const UIViewController& screen);

}  // namespace leafund::random
