#include <algorithm>
#include <cmath>
#include <string_view>

#include "tests/contract/ContractTest.h"

namespace leafund {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class LifeCycleContract : public ContractTest {
 protected:
  CGSize window() {
    const auto frame = navigation().viewControllers()[0]->viewIfLoaded()->frame();
    return {frame.width, frame.height};
  }
  // Where a list of that height lies.
  CGRect column(double height) {
    const double width = std::min(720.0, window().width - 2 * 16);
    return {std::floor((window().width - width) / 2), 0, width, height};
  }
};

constexpr double kBar = UINavigationController::kBarHeight;

TEST_F(LifeCycleContract, TheFirstScreenLoadsOnceThenAppearsOnceWithItsFrameSet) {
  EXPECT_THAT(stack(), ElementsAre("LandingPageVC"));
  EXPECT_THAT(log,
              ElementsAre("LandingPageVC viewDidLoad", "LandingPageVC viewWillAppear", "active"));
  EXPECT_GE(window().width, 320);
  EXPECT_GE(window().height, 568);
  EXPECT_THAT(life(shown()).framesAtAppearance,
              ElementsAre(CGRect{0, 0, window().width, window().height}));
}

TEST_F(LifeCycleContract, APushPreparesBeforeTheDestinationLoads) {
  takeLog();
  tap("signUpButton");
  settle();
  EXPECT_THAT(log, ElementsAre("LandingPageVC prepares signUpSegue", "SignUpVC viewDidLoad",
                               "SignUpVC viewWillAppear"));
}

TEST_F(LifeCycleContract, APushedScreenHasItsFrameBelowTheBarWhenItAppears) {
  tap("signUpButton");
  settle();
  EXPECT_THAT(life(shown()).framesAtAppearance,
              ElementsAre(CGRect{0, kBar, window().width, window().height - kBar}));
}

TEST_F(LifeCycleContract, HomeLoadsWithItsVisibleTabAlone) {
  takeLog();
  signIn();
  EXPECT_THAT(
      log, ElementsAre("LandingPageVC prepares signInSegue", "TabBarVC viewDidLoad",
                       "OtherCampaignsTableViewController viewDidLoad", "TabBarVC viewWillAppear",
                       "OtherCampaignsTableViewController viewWillAppear"));
  const double room = window().height - kBar - UITabBar::kHeight;
  EXPECT_THAT(life(shown()).framesAtAppearance, ElementsAre(column(room)));
}

TEST_F(LifeCycleContract, AnotherTabLoadsOnceAndAppearsAtEachSelectionAndTheCurrentOneDoesNot) {
  signIn();
  takeLog();
  tap("newsTab");
  settle();
  EXPECT_THAT(takeLog(), ElementsAre("NewsFeedVC viewDidLoad", "NewsFeedVC viewWillAppear"));
  tap("newsTab");
  settle();
  EXPECT_THAT(takeLog(), IsEmpty());
  tap("browseTab");
  settle();
  EXPECT_THAT(takeLog(), ElementsAre("OtherCampaignsTableViewController viewWillAppear"));
  tap("newsTab");
  settle();
  EXPECT_THAT(takeLog(), ElementsAre("NewsFeedVC viewWillAppear"));
  EXPECT_EQ(life(shown()).framesAtAppearance.size(), 2U);
}

TEST_F(LifeCycleContract, EveryScreenHasASizeWheneverItAppears) {
  signIn();
  for (const char* tab : {"fundedTab", "mineTab", "newsTab", "browseTab"}) {
    tap(tab);
    settle();
    const auto frame = life(shown()).framesAtAppearance.back();
    const bool isList = std::string_view(tab) != "newsTab";
    EXPECT_EQ(frame.width, isList ? column(0).width : window().width) << tab;
    EXPECT_GT(frame.height, 0) << tab;
  }
}

TEST_F(LifeCycleContract, TheSystemsCallsReachTheDelegateAndAreNoAppearance) {
  signIn();
  takeLog();
  application->resignActive();
  application->enterBackground();
  application->enterForeground();
  application->becomeActive();
  EXPECT_THAT(log, ElementsAre("resigns active", "in background", "to foreground", "active"));
  takeLog();
  application->terminate();
  EXPECT_THAT(log, ElementsAre("ends"));
}

TEST_F(LifeCycleContract, AMemoryWarningReachesEveryScreenAndReleasesNoView) {
  signIn();
  const auto shownView = shown()->viewIfLoaded();
  takeLog();
  application->receiveMemoryWarning();
  EXPECT_THAT(
      log, ElementsAre("LandingPageVC didReceiveMemoryWarning", "TabBarVC didReceiveMemoryWarning",
                       "OtherCampaignsTableViewController didReceiveMemoryWarning"));
  EXPECT_EQ(shown()->viewIfLoaded(), shownView);
}

TEST_F(LifeCycleContract, AReleasedViewLoadsAnewWhenItsScreenComesBackAndWorks) {
  tap("signUpButton");
  settle();
  const auto landing = navigation().viewControllers()[0];
  const std::weak_ptr<UIResponder> before = landing->viewIfLoaded();
  landing->releaseView();
  EXPECT_TRUE(before.expired());
  takeLog();
  application->goBack();
  settle();
  EXPECT_THAT(takeLog(), ElementsAre("LandingPageVC viewDidLoad", "LandingPageVC viewWillAppear"));
  tap("signInButton");
  EXPECT_EQ(field("userEmail")->text(), "Error: Please Enter a Name");
  signIn();
  EXPECT_THAT(stack(), ElementsAre("LandingPageVC", "TabBarVC"));
}

TEST_F(LifeCycleContract, TheScreensOfTabsOutliveTheViewThatHeldTheirTabs) {
  signIn();
  tap("mineTab");
  settle();
  const auto children = top()->childViewControllers();
  tap("newButton");
  settle();
  navigation().viewControllers()[1]->releaseView();
  takeLog();
  application->goBack();
  settle();
  EXPECT_EQ(top()->childViewControllers(), children);
  EXPECT_THAT(takeLog(), ElementsAre("TabBarVC viewDidLoad", "TabBarVC viewWillAppear",
                                     "OtherCampaignsTableViewController viewWillAppear"));
  EXPECT_FALSE(table()->visibleCells().empty());
}

}  // namespace
}  // namespace leafund
