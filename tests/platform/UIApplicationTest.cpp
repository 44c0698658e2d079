#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/headless/HeadlessHost.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UINavigationController.h"
#include "tests/support/ProbeDelegate.h"
#include "tests/support/ProbeScreen.h"

namespace leafund {
namespace {

using testing::ElementsAre;

// Launched by each test itself.
class UIApplicationTest : public testing::Test {
 protected:
  ProbeLog log;
  UIStoryboard storyboard{"First", {probeScene(log, "First")}, {}};
  HeadlessHost host;
  std::shared_ptr<ProbeDelegate> delegate = std::make_shared<ProbeDelegate>(log);
  std::shared_ptr<UIApplication> application =
      std::make_shared<UIApplication>(host, storyboard, delegate);
};

TEST_F(UIApplicationTest, ItIsTheCurrentOneForItsLife) {
  EXPECT_EQ(UIApplication::current(), application.get());
  application.reset();
  EXPECT_EQ(UIApplication::current(), nullptr);
}

TEST_F(UIApplicationTest, BeforeTheLaunchThereIsNoStackAndNothingIsReached) {
  EXPECT_EQ(application->navigation(), nullptr);
  EXPECT_EQ(application->firstResponder(), nullptr);
  EXPECT_FALSE(application->reachable(UIView()));
}

TEST_F(UIApplicationTest, TheDelegateHearsOfTheLaunchBeforeAnyScreenLoads) {
  application->launch();
  EXPECT_THAT(log, ElementsAre("launched", "First viewDidLoad", "First viewWillAppear"));
}

TEST_F(UIApplicationTest, TheWindowIsThereWhenTheDelegateHearsOfTheLaunch) {
  bool windowThere = false;
  delegate->onLaunch = [&](UIApplication&) { windowThere = delegate->window != nullptr; };
  application->launch();
  EXPECT_TRUE(windowThere);
}

TEST_F(UIApplicationTest, TheLaunchOptionsReachTheDelegate) {
  application->launch(LaunchOptions{{"url", "http://example.org"}});
  EXPECT_EQ(delegate->launchOptions->at("url"), "http://example.org");
}

TEST_F(UIApplicationTest, WhatIsRaisedBeforeTheLaunchWaitsForTheFirstScreen) {
  std::string top;
  application->goBack();
  application->turn([&] { top = application->navigation()->topViewController()->className(); });
  EXPECT_EQ(top, "");
  application->launch();
  EXPECT_EQ(top, "First");
}

TEST_F(UIApplicationTest, TheLastSizeBeforeTheFirstScreenIsItsSize) {
  application->resize({100, 100});
  delegate->onLaunch = [](UIApplication& launched) { launched.resize({320, 568}); };
  application->launch();
  EXPECT_EQ(application->navigation()->topViewController()->viewIfLoaded()->frame(),
            (CGRect{0, 0, 320, 568}));
}

TEST_F(UIApplicationTest, TheSystemsCallsReachTheDelegateEachOnce) {
  application->launch();
  take(log);
  application->resignActive();
  application->enterBackground();
  application->enterForeground();
  application->becomeActive();
  application->terminate();
  EXPECT_THAT(log,
              ElementsAre("resigns active", "in background", "to foreground", "active", "ends"));
}

TEST_F(UIApplicationTest, GoingToTheBackgroundAndBackIsNoAppearance) {
  application->launch();
  take(log);
  application->enterBackground();
  application->enterForeground();
  EXPECT_THAT(log, ElementsAre("in background", "to foreground"));
}

TEST_F(UIApplicationTest, AMemoryWarningReachesTheScreensAndReleasesNothing) {
  application->launch();
  take(log);
  const auto view = application->navigation()->topViewController()->viewIfLoaded();
  application->receiveMemoryWarning();
  EXPECT_THAT(log, ElementsAre("First didReceiveMemoryWarning"));
  EXPECT_EQ(application->navigation()->topViewController()->viewIfLoaded(), view);
}

}  // namespace
}  // namespace leafund
