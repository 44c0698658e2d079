#include "tests/contract/ContractTest.h"

#include "platform/dispatch/MainQueue.h"
#include "tests/support/ViewNamed.h"

namespace leafund {

ContractTest::ContractTest()
    : application(std::make_shared<UIApplication>(underTest->host(), storyboard, delegate)) {
  underTest->start(*application);
  // A window takes a moment to come to the front.
  EXPECT_TRUE(underTest->runUntil([this] { return !log.empty() && log.back() == "active"; }));
  settle();
}

ContractTest::~ContractTest() = default;

std::shared_ptr<UIViewController> ContractTest::shown() { return shownScreen(navigation()); }

WatchedLife& ContractTest::life(const std::shared_ptr<UIViewController>& screen) {
  return dynamic_cast<WatchedLife&>(*screen);
}

std::vector<std::string> ContractTest::stack() {
  std::vector<std::string> names;
  for (const auto& screen : navigation().viewControllers()) names.push_back(screen->className());
  return names;
}

std::shared_ptr<UIView> ContractTest::view(std::string_view name) {
  return viewNamed(navigation(), name);
}

std::shared_ptr<UITextField> ContractTest::field(std::string_view name) {
  return std::dynamic_pointer_cast<UITextField>(view(name));
}

std::shared_ptr<UITableView> ContractTest::table() {
  return std::dynamic_pointer_cast<UITableView>(shown()->view());
}

void ContractTest::type(std::string_view name, const std::string& text) {
  const auto input = field(name);
  application->beginEditing(input);
  application->edit(input, text);
}

void ContractTest::signIn() {
  type("userEmail", "wren@example.org");
  type("password", "secret");
  tap("signInButton");
  settle();
}

void ContractTest::settle() {
  bool reached = false;
  dispatch_async(dispatch_get_main_queue(), [&reached] { reached = true; });
  ASSERT_TRUE(underTest->runUntil([&reached] { return reached; }));
}

}  // namespace leafund
