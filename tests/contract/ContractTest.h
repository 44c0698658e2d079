#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UITabContainer.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"
#include "tests/contract/HostUnderTest.h"
#include "tests/contract/WatchedScreens.h"

namespace leafund {

// The application with watched screens on the host under test, launched and settled.
class ContractTest : public testing::Test {
 protected:
  ContractTest();
  ~ContractTest() override;

  UINavigationController& navigation() { return *application->navigation(); }
  const std::shared_ptr<UIViewController>& top() { return navigation().topViewController(); }
  // The topmost screen, or the selected tab's when it holds tabs.
  std::shared_ptr<UIViewController> shown();
  WatchedLife& life(const std::shared_ptr<UIViewController>& screen);
  std::vector<std::string> stack();
  // The log so far; it begins anew.
  ContractLog takeLog() { return std::exchange(log, {}); }

  // The view of that name on the topmost screen; a test fails that asks for one that is not there.
  std::shared_ptr<UIView> view(std::string_view name);
  std::shared_ptr<UITextField> field(std::string_view name);
  std::shared_ptr<UITableView> table();
  void tap(std::string_view name) { application->tap(view(name)); }
  void type(std::string_view name, const std::string& text);
  void tapRow(std::ptrdiff_t row) { application->tap(table()->visibleCells().at(row)); }
  void signIn();

  // Lets the host go on until all that was posted so far has run.
  void settle();

  ContractLog log;
  UIStoryboard storyboard = watchedStoryboard(log);
  std::shared_ptr<WatchedDelegate> delegate = std::make_shared<WatchedDelegate>(log);
  std::unique_ptr<HostUnderTest> underTest = HostUnderTest::make();
  std::shared_ptr<UIApplication> application;
};

}  // namespace leafund
