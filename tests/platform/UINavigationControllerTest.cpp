#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/uikit/UINavigationController.h"
#include "tests/support/HeadlessApplication.h"
#include "tests/support/ProbeScreen.h"

namespace leafund {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using enum SegueKind;

// First has no bar of its own; Second and Third have titles. Third leads back to either.
class UINavigationControllerTest : public testing::Test {
 protected:
  static void titled(Scene<ProbeScreen>& scene, ProbeScreen& screen) {
    scene.title(screen.className());
  }
  std::shared_ptr<ProbeScreen> shown() { return app.shownAs<ProbeScreen>(); }
  void perform(const std::string& identifier) {
    app.application->turn([&] { shown()->performSegueWithIdentifierSender(identifier, nullptr); });
  }
  void goBack() { app.application->goBack(); }

  ProbeLog log;
  UIStoryboard storyboard{"First",
                          {probeScene(log, "First"), probeScene(log, "Second", titled),
                           probeScene(log, "Third", titled)},
                          {{"next", "First", "Second", Push},
                           {"next", "Second", "Third", Push},
                           {"again", "Third", "Second", Push},
                           {"toSecond", "Third", "Second", UnwindTo},
                           {"toFirst", "Third", "First", UnwindTo},
                           {"astray", "Second", "Third", UnwindTo}}};
  HeadlessApplication app{storyboard};
};

TEST_F(UINavigationControllerTest, TheFirstScreenLoadsAndAppearsOnce) {
  EXPECT_THAT(app.stack(), ElementsAre("First"));
  EXPECT_THAT(log, ElementsAre("First viewDidLoad", "First viewWillAppear"));
}

TEST_F(UINavigationControllerTest, APushPreparesThenLoadsThenAppears) {
  take(log);
  perform("next");
  EXPECT_THAT(app.stack(), ElementsAre("First", "Second"));
  EXPECT_THAT(log, ElementsAre("First prepares next", "Second viewDidLoad",
                               "Second viewWillAppear, animated"));
}

TEST_F(UINavigationControllerTest, GoingBackIsOneAppearanceOfTheScreenBelowWithoutALoad) {
  perform("next");
  take(log);
  goBack();
  EXPECT_THAT(app.stack(), ElementsAre("First"));
  EXPECT_THAT(log, ElementsAre("First viewWillAppear, animated"));
}

TEST_F(UINavigationControllerTest, UnwindingIsOneAppearanceOfTheDestinationAndNoneOnTheWay) {
  perform("next");
  perform("next");
  take(log);
  perform("toFirst");
  EXPECT_THAT(app.stack(), ElementsAre("First"));
  EXPECT_THAT(log, ElementsAre("Third prepares toFirst", "First viewWillAppear, animated"));
}

TEST_F(UINavigationControllerTest, UnwindingGoesToTheNearestScreenOfTheScene) {
  perform("next");
  perform("next");
  perform("again");
  perform("next");
  const auto nearest = app.navigation().viewControllers()[3];
  perform("toSecond");
  EXPECT_THAT(app.stack(), ElementsAre("First", "Second", "Third", "Second"));
  EXPECT_EQ(app.navigation().topViewController(), nearest);
}

TEST_F(UINavigationControllerTest, EachPushMakesAScreenOfItsOwn) {
  perform("next");
  const std::weak_ptr<UIResponder> left = shown();
  goBack();
  EXPECT_TRUE(left.expired());
  take(log);
  perform("next");
  EXPECT_THAT(log, testing::Contains("Second viewDidLoad").Times(1));
}

TEST_F(UINavigationControllerTest, AtTheRootThereIsNoWayBack) {
  take(log);
  EXPECT_FALSE(app.navigation().canGoBack(*shown()));
  goBack();
  EXPECT_THAT(app.stack(), ElementsAre("First"));
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(UINavigationControllerTest, AHiddenBackButtonRefusesTheWayBackUntilItIsShownAgain) {
  perform("next");
  EXPECT_TRUE(app.navigation().canGoBack(*shown()));
  shown()->navigationItem().setHidesBackButton(true);
  take(log);
  EXPECT_FALSE(app.navigation().canGoBack(*shown()));
  goBack();
  EXPECT_THAT(app.stack(), ElementsAre("First", "Second"));
  EXPECT_THAT(log, IsEmpty());
  shown()->navigationItem().setHidesBackButton(false);
  goBack();
  EXPECT_THAT(app.stack(), ElementsAre("First"));
}

TEST_F(UINavigationControllerTest, AHiddenBackButtonDoesNotHinderASegue) {
  perform("next");
  perform("next");
  shown()->navigationItem().setHidesBackButton(true);
  perform("toFirst");
  EXPECT_THAT(app.stack(), ElementsAre("First"));
}

TEST_F(UINavigationControllerTest, TheFrameIsSetBeforeEachAppearanceAndLeavesRoomForTheBar) {
  EXPECT_THAT(shown()->framesAtAppearance, ElementsAre(CGRect{0, 0, 390, 844}));
  perform("next");
  constexpr double bar = UINavigationController::kBarHeight;
  EXPECT_THAT(shown()->framesAtAppearance, ElementsAre(CGRect{0, bar, 390, 844 - bar}));
}

TEST_F(UINavigationControllerTest, AScreenHasABarForItsTitleOrForAWayBack) {
  auto& navigation = app.navigation();
  EXPECT_FALSE(navigation.showsBar(*shown()));
  perform("next");
  EXPECT_TRUE(navigation.showsBar(*shown()));
  EXPECT_EQ(navigation.barTitle(*shown()), "Second");
  shown()->navigationItem().setTitle("");
  EXPECT_TRUE(navigation.showsBar(*shown()));
  shown()->navigationItem().setHidesBackButton(true);
  EXPECT_FALSE(navigation.showsBar(*shown()));
}

TEST_F(UINavigationControllerTest, AResizeReachesTheShownScreenAtOnceWithoutAnAppearance) {
  perform("next");
  take(log);
  const int layouts = shown()->layouts;
  app.application->resize({320, 568});
  EXPECT_EQ(shown()->viewIfLoaded()->frame(), (CGRect{0, 56, 320, 512}));
  EXPECT_EQ(shown()->layouts, layouts + 1);
  EXPECT_EQ(app.navigation().viewControllers()[0]->viewIfLoaded()->frame().width, 390);
  EXPECT_THAT(log, IsEmpty());
  goBack();
  EXPECT_EQ(shown()->framesAtAppearance.back(), (CGRect{0, 0, 320, 568}));
}

TEST_F(UINavigationControllerTest, AWindowLowerThanTheBarLeavesNoHeight) {
  perform("next");
  app.application->resize({320, 20});
  EXPECT_EQ(shown()->viewIfLoaded()->frame(), (CGRect{0, 56, 320, 0}));
}

TEST_F(UINavigationControllerTest, EveryMoveAsksTheHostToShowTheStackOnce) {
  const int before = app.host.showings();
  perform("next");
  EXPECT_EQ(app.host.showings(), before + 1);
  goBack();
  EXPECT_EQ(app.host.showings(), before + 2);
  goBack();
  EXPECT_EQ(app.host.showings(), before + 2);
}

TEST_F(UINavigationControllerTest, AScreenKnowsItsStackWhileItStandsOnItAlone) {
  perform("next");
  const auto second = shown();
  EXPECT_EQ(second->navigationController(), app.application->navigation());
  goBack();
  EXPECT_EQ(second->navigationController(), nullptr);
}

TEST_F(UINavigationControllerTest, AScreenThatSomethingStillHoldsKeepsItsViewsAfterItLeft) {
  perform("next");
  auto held = shown();  // as a fetch under way holds it
  const std::weak_ptr<UIResponder> view = held->viewIfLoaded();
  goBack();
  EXPECT_FALSE(view.expired());
  held.reset();
  EXPECT_TRUE(view.expired());
}

TEST_F(UINavigationControllerTest, AMemoryWarningReachesEveryScreenOnTheStack) {
  perform("next");
  perform("next");
  take(log);
  app.application->receiveMemoryWarning();
  EXPECT_THAT(log, ElementsAre("First didReceiveMemoryWarning", "Second didReceiveMemoryWarning",
                               "Third didReceiveMemoryWarning"));
}

using UINavigationControllerDeathTest = UINavigationControllerTest;

TEST_F(UINavigationControllerDeathTest, UnwindingToASceneThatStandsNowhereBelowIsFatal) {
  perform("next");
  EXPECT_DEATH(perform("astray"), "Leafund stopped: Second: no Third stands below");
}

TEST_F(UINavigationControllerDeathTest, ASegueFromAScreenThatHasLeftIsFatal) {
  perform("next");
  const auto left = shown();
  goBack();
  EXPECT_DEATH(left->performSegueWithIdentifierSender("next", nullptr),
               "Leafund stopped: Second: performs a segue outside a navigation stack");
}

}  // namespace
}  // namespace leafund
