#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/headless/HeadlessHost.h"
#include "platform/uikit/UINavigationController.h"
#include "tests/support/ProbeDelegate.h"
#include "tests/support/ProbeHost.h"
#include "tests/support/ProbeScreen.h"

namespace leafund {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

ProbeLog& mainLog() {
  static ProbeLog log;
  return log;
}

class MainDelegate : public ProbeDelegate {
 public:
  static constexpr std::string_view kClassName = "MainDelegate";
  MainDelegate() : ProbeDelegate(mainLog()) {}
};

const UIStoryboard& storyboard() {
  static const UIStoryboard only("Only", {probeScene(mainLog(), "Only")}, {});
  return only;
}

int start(Host& host, std::string_view delegateClass) {
  return UIApplicationMain(0, nullptr, std::nullopt, delegateClass, host, storyboard());
}

TEST(UIApplicationMainTest, AClassIsNamedAsItCallsItself) {
  EXPECT_EQ(NSStringFromClass<MainDelegate>(), "MainDelegate");
}

TEST(UIApplicationMainTest, ItHandsAnUnlaunchedApplicationToTheHostAndAnswersWhatItsLoopReturns) {
  ProbeHost host;
  host.answerOfRun = 7;
  EXPECT_EQ(start(host, NSStringFromClass<MainDelegate>()), 7);
  ASSERT_THAT(host.runs, SizeIs(1));
  EXPECT_EQ(host.runs[0], UIApplication::current());
  EXPECT_EQ(host.runs[0]->navigation(), nullptr);
}

TEST(UIApplicationMainTest, TheApplicationLivesOnAfterItReturned) {
  HeadlessHost host;
  take(mainLog());
  EXPECT_EQ(start(host, NSStringFromClass<MainDelegate>()), 0);
  ASSERT_NE(UIApplication::current(), nullptr);
  EXPECT_THAT(mainLog(),
              ElementsAre("launched", "Only viewDidLoad", "Only viewWillAppear", "active"));
  UIApplication::current()->terminate();
  EXPECT_EQ(mainLog().back(), "ends");
}

TEST(UIApplicationMainTest, TheHostIsInForceBeforeItsLoopRuns) {
  ProbeHost host;
  setCurrentHost(nullptr);
  start(host, NSStringFromClass<MainDelegate>());
  EXPECT_EQ(&currentHost(), &host);
}

TEST(UIApplicationMainDeathTest, AClassThatNobodyNamedIsFatal) {
  ProbeHost host;
  EXPECT_DEATH(start(host, "NobodysDelegate"),
               "Leafund stopped: UIApplicationMain: no class is named NobodysDelegate");
}

}  // namespace
}  // namespace leafund
