#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/uikit/UITabContainer.h"
#include "tests/support/HeadlessApplication.h"
#include "tests/support/ProbeScreen.h"

namespace leafund {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using enum SegueKind;

// Home holds three tabs; the third has no title and so no bar. A button is seen on the second
// alone.
class UITabContainerTest : public testing::Test {
 protected:
  static void titled(Scene<ProbeScreen>& scene, ProbeScreen& screen) {
    scene.title(screen.className());
  }
  static void home(Scene<ProbeScreen>& scene, ProbeScreen& screen) {
    scene.tabs({{"oneTab", "One", "One"}, {"twoTab", "Two", "Two"}, {"bareTab", "Bare", "Bare"}});
    scene.segue(scene.buttonOnTab("twoTab", "addButton", "Add"), "add");
    screen.navigationItem().setHidesBackButton(true);
  }
  std::shared_ptr<UIView> tabBar() { return app.view("tabBar"); }
  std::shared_ptr<ProbeScreen> shown() { return app.shownAs<ProbeScreen>(); }
  void performFromShown(const std::string& identifier) {
    app.application->turn([&] { shown()->performSegueWithIdentifierSender(identifier, nullptr); });
  }

  ProbeLog log;
  UIStoryboard storyboard{
      "Home",
      {probeScene(log, "Home", home), probeScene(log, "One", titled),
       probeScene(log, "Two", titled), probeScene(log, "Bare"), probeScene(log, "Detail", titled)},
      {{"add", "Home", "Detail", Push},
       {"open", "Two", "Detail", Push},
       {"leave", "Two", "Home", UnwindTo},
       {"restart", "Detail", "Home", Push}}};
  HeadlessApplication app{storyboard};
};

TEST_F(UITabContainerTest, TheFirstTabIsSelectedAndItsScreenAppearsWithItsHolder) {
  EXPECT_EQ(shown()->className(), "One");
  EXPECT_THAT(log, ElementsAre("Home viewDidLoad", "One viewDidLoad", "Home viewWillAppear",
                               "One viewWillAppear"));
}

TEST_F(UITabContainerTest, OnlyTheSelectedItemSaysSo) {
  app.tap("twoTab");
  std::vector<bool> selected;
  std::vector<std::string> titles;
  for (const auto& view : tabBar()->subviews()) {
    selected.push_back(std::static_pointer_cast<UITabBarItem>(view)->selected());
    titles.push_back(std::static_pointer_cast<UITabBarItem>(view)->title());
  }
  EXPECT_THAT(titles, ElementsAre("One", "Two", "Bare"));
  EXPECT_THAT(selected, ElementsAre(false, true, false));
}

TEST_F(UITabContainerTest, SelectingAnotherTabIsOneLoadAndOneAppearanceOfItsScreenAlone) {
  take(log);
  app.tap("twoTab");
  EXPECT_THAT(take(log), ElementsAre("Two viewDidLoad", "Two viewWillAppear"));
  app.tap("oneTab");
  EXPECT_THAT(take(log), ElementsAre("One viewWillAppear"));
  app.tap("twoTab");
  EXPECT_THAT(take(log), ElementsAre("Two viewWillAppear"));
}

TEST_F(UITabContainerTest, SelectingTheCurrentTabAndResizingAreNoAppearance) {
  take(log);
  const int showings = app.host.showings();
  app.tap("oneTab");
  EXPECT_EQ(app.host.showings(), showings);
  app.application->resize({320, 568});
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(UITabContainerTest, ATabsScreenIsMadeWhenFirstSelectedAndKept) {
  const auto& holder = app.navigation().topViewController();
  EXPECT_EQ(holder->childViewControllers().size(), 1U);
  app.tap("twoTab");
  const auto second = app.shown();
  app.tap("oneTab");
  app.tap("twoTab");
  EXPECT_EQ(app.shown(), second);
  EXPECT_EQ(holder->childViewControllers().size(), 2U);
  EXPECT_EQ(second->parentViewController(), holder.get());
  EXPECT_EQ(second->navigationController(), app.application->navigation());
}

TEST_F(UITabContainerTest, TheScreenFillsTheRoomAboveTheBarBeforeItAppears) {
  constexpr double room = 844 - UINavigationController::kBarHeight;
  EXPECT_EQ(app.view("tabs")->frame(), (CGRect{0, 0, 390, room}));
  EXPECT_EQ(tabBar()->frame(), (CGRect{0, room - 64, 390, 64}));
  EXPECT_THAT(shown()->framesAtAppearance, ElementsAre(CGRect{0, 0, 390, room - 64}));
  app.tap("twoTab");
  EXPECT_THAT(shown()->framesAtAppearance, ElementsAre(CGRect{0, 0, 390, room - 64}));
}

TEST_F(UITabContainerTest, ARailStandsAtTheSideFromTopToFootAndLeavesTheRest) {
  app.application->resize({844, 390}, 80);
  EXPECT_EQ(app.view("tabs")->frame(), (CGRect{0, 0, 844, 334}));
  EXPECT_EQ(tabBar()->frame(), (CGRect{0, -56, 80, 390}));
  EXPECT_EQ(shown()->viewIfLoaded()->frame(), (CGRect{80, 0, 764, 334}));
  app.tap("twoTab");
  EXPECT_THAT(shown()->framesAtAppearance, ElementsAre(CGRect{80, 0, 764, 334}));
  app.application->resize({390, 844});
  EXPECT_EQ(tabBar()->frame(), (CGRect{0, 844 - 56 - 64, 390, 64}));
  EXPECT_EQ(shown()->viewIfLoaded()->frame(), (CGRect{0, 0, 390, 844 - 56 - 64}));
}

TEST_F(UITabContainerTest, ARailWiderThanTheWindowLeavesItsScreenNoWidth) {
  app.application->resize({60, 390}, 80);
  EXPECT_EQ(tabBar()->frame(), (CGRect{0, -56, 60, 390}));
  EXPECT_EQ(shown()->viewIfLoaded()->frame(), (CGRect{60, 0, 0, 334}));
}

TEST_F(UITabContainerTest, ATabThatWasNotShownDuringAResizeHasTheNewSizeWhenItAppears) {
  app.tap("twoTab");
  app.application->resize({320, 568});
  EXPECT_EQ(shown()->viewIfLoaded()->frame(), (CGRect{0, 0, 320, 568 - 56 - 64}));
  app.tap("oneTab");
  EXPECT_EQ(shown()->framesAtAppearance.back(), (CGRect{0, 0, 320, 568 - 56 - 64}));
}

TEST_F(UITabContainerTest, TheBarShowsTheSelectedTabsTitle) {
  const auto& holder = *app.navigation().topViewController();
  EXPECT_EQ(app.navigation().barTitle(holder), "One");
  app.tap("twoTab");
  EXPECT_EQ(app.navigation().barTitle(holder), "Two");
}

TEST_F(UITabContainerTest, ATabWithoutATitleHasTheRoomOfTheBar) {
  app.tap("bareTab");
  const auto& holder = *app.navigation().topViewController();
  EXPECT_FALSE(app.navigation().showsBar(holder));
  EXPECT_EQ(holder.viewIfLoaded()->frame(), (CGRect{0, 0, 390, 844}));
  EXPECT_THAT(shown()->framesAtAppearance, ElementsAre(CGRect{0, 0, 390, 844 - 64}));
  app.tap("oneTab");
  EXPECT_EQ(shown()->framesAtAppearance.back(), (CGRect{0, 0, 390, 844 - 56 - 64}));
}

TEST_F(UITabContainerTest, TheViewOfATabThatWasLeftIsOffTheTreeAndOutOfReach) {
  const auto first = app.shown();
  app.tap("twoTab");
  EXPECT_EQ(first->viewIfLoaded()->superview(), nullptr);
  EXPECT_FALSE(app.application->reachable(*first->viewIfLoaded()));
  EXPECT_TRUE(app.application->reachable(*app.shown()->viewIfLoaded()));
  EXPECT_EQ(app.shown()->viewIfLoaded()->superview(), app.view("tabs").get());
}

TEST_F(UITabContainerTest, AButtonOnATabIsSeenAndReachedOnThatTabAlone) {
  EXPECT_TRUE(app.view("addButton")->hidden());
  app.tap("addButton");
  EXPECT_THAT(app.stack(), ElementsAre("Home"));
  app.tap("twoTab");
  EXPECT_FALSE(app.view("addButton")->hidden());
  app.tap("addButton");
  EXPECT_THAT(app.stack(), ElementsAre("Home", "Detail"));
}

TEST_F(UITabContainerTest, AButtonForAnUnknownTabIsNeverSeen) {
  const auto button = std::make_shared<UIView>();
  std::static_pointer_cast<UITabContainer>(app.view("tabs"))->addButtonOnTab("nowhereTab", button);
  EXPECT_TRUE(button->hidden());
  app.tap("twoTab");
  EXPECT_TRUE(button->hidden());
}

TEST_F(UITabContainerTest, ComingBackIsOneAppearanceOfTheHolderAndOneOfItsVisibleTab) {
  app.tap("twoTab");
  performFromShown("open");
  take(log);
  app.application->goBack();
  EXPECT_EQ(shown()->className(), "Two");
  EXPECT_THAT(log, ElementsAre("Home viewWillAppear, animated", "Two viewWillAppear, animated"));
}

TEST_F(UITabContainerTest, ATabsScreenUnwindsToOneThatStandsBelowItsHolder) {
  app.tap("twoTab");
  performFromShown("open");
  performFromShown("restart");
  app.tap("twoTab");
  EXPECT_THAT(app.stack(), ElementsAre("Home", "Detail", "Home"));
  performFromShown("leave");
  EXPECT_THAT(app.stack(), ElementsAre("Home"));
}

TEST_F(UITabContainerTest, AMemoryWarningReachesTheScreensOfTheTabsMadeSoFar) {
  app.tap("twoTab");
  take(log);
  app.application->receiveMemoryWarning();
  EXPECT_THAT(log, ElementsAre("Home didReceiveMemoryWarning", "One didReceiveMemoryWarning",
                               "Two didReceiveMemoryWarning"));
}

TEST_F(UITabContainerTest, AWindowLowerThanTheTabBarLeavesItsScreenNoHeight) {
  app.application->resize({320, 80});
  EXPECT_EQ(shown()->viewIfLoaded()->frame(), (CGRect{0, 0, 320, 0}));
}

TEST(UITabBarTest, ItemsAndBarsTakeOverTheSettingsInForceWhenTheyAreMade) {
  const auto green = UIColor::initWithRedGreenBlueAlpha(0, 1, 0, 1);
  const auto before = UITabBar::appearance().tintColor();
  const auto titlesBefore = UITabBarItem::appearance().selectedTitleColor();
  const UITabBarItem earlyItem("Early");
  const UITabBar earlyBar;
  UITabBarItem::appearance().setTitleTextAttributesForState(green, UIControlStateSelected);
  UITabBar::appearance().setTintColor(green);
  EXPECT_EQ(earlyItem.selectedTitleColor(), titlesBefore);
  EXPECT_EQ(earlyBar.tintColor(), before);
  EXPECT_EQ(UITabBarItem("Late").selectedTitleColor(), green);
  EXPECT_EQ(UITabBar().tintColor(), green);
}

}  // namespace
}  // namespace leafund
