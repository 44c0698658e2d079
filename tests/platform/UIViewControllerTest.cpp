#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/uikit/UITableViewController.h"
#include "platform/uikit/UIViewController.h"
#include "tests/support/HeadlessApplication.h"
#include "tests/support/ProbeScreen.h"

namespace leafund {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using enum SegueKind;

class UIViewControllerTest : public testing::Test {
 protected:
  static void home(Scene<ProbeScreen>& scene, ProbeScreen&) {
    scene.tabs({{"oneTab", "One", "One"}, {"twoTab", "Two", "Two"}});
    scene.segue(scene.button("openButton", "Open"), "open");
  }
  static void detail(Scene<ProbeScreen>& scene, ProbeScreen&) { scene.title("Detail"); }

  ProbeLog log;
  UIStoryboard storyboard{"Home",
                          {probeScene(log, "Home", home), probeScene(log, "One"),
                           probeScene(log, "Two"), probeScene(log, "Detail", detail)},
                          {{"open", "Home", "Detail", Push}}};
  HeadlessApplication app{storyboard};
};

TEST_F(UIViewControllerTest, TheViewLoadsAtItsFirstUseAndOnce) {
  const auto screen = storyboard.instantiateViewControllerWithIdentifier("Detail");
  take(log);
  EXPECT_EQ(screen->viewIfLoaded(), nullptr);
  const auto view = screen->view();
  EXPECT_EQ(screen->view(), view);
  EXPECT_EQ(screen->viewIfLoaded(), view);
  EXPECT_THAT(log, ElementsAre("Detail viewDidLoad"));
}

TEST_F(UIViewControllerTest, TheSceneIsBuiltBeforeTheLoadIsTold) {
  const auto screen = std::static_pointer_cast<ProbeScreen>(
      storyboard.instantiateViewControllerWithIdentifier("Home"));
  std::size_t views = 0;
  screen->onLoad = [&] { views = screen->view()->subviews().size(); };
  screen->view();
  EXPECT_EQ(views, 2U);
}

TEST_F(UIViewControllerTest, AReleasedViewLoadsAnewAtItsNextUse) {
  const auto screen = storyboard.instantiateViewControllerWithIdentifier("Detail");
  const std::weak_ptr<UIResponder> first = screen->view();
  take(log);
  screen->releaseView();
  EXPECT_TRUE(first.expired());
  EXPECT_THAT(log, IsEmpty());
  EXPECT_NE(screen->view(), nullptr);
  EXPECT_THAT(log, ElementsAre("Detail viewDidLoad"));
}

TEST_F(UIViewControllerTest, ACoveredScreenWhoseViewWasReleasedLoadsAnewWhenItComesBack) {
  app.tap("openButton");
  app.navigation().viewControllers()[0]->releaseView();
  take(log);
  app.application->goBack();
  EXPECT_THAT(log, ElementsAre("Home viewDidLoad", "Home viewWillAppear, animated",
                               "One viewWillAppear, animated"));
  EXPECT_EQ(app.shown()->view()->superview(), app.view("tabs").get());
  app.tap("openButton");
  EXPECT_THAT(app.stack(), ElementsAre("Home", "Detail"));
}

TEST_F(UIViewControllerTest, TheScreensOfTabsOutliveTheViewThatHeldTheirTabs) {
  app.tap("twoTab");
  const auto children = app.navigation().topViewController()->childViewControllers();
  const auto view = children[1]->viewIfLoaded();
  app.tap("openButton");
  const auto holder = app.navigation().viewControllers()[0];
  holder->releaseView();
  EXPECT_EQ(holder->shownChild(), nullptr);
  EXPECT_EQ(view->superview(), nullptr);
  app.application->goBack();
  EXPECT_EQ(holder->childViewControllers(), children);
  take(log);
  app.tap("twoTab");
  EXPECT_EQ(app.shown(), children[1]);
  EXPECT_EQ(app.shown()->viewIfLoaded(), view);
  EXPECT_THAT(log, ElementsAre("Two viewWillAppear"));
}

TEST_F(UIViewControllerTest, ATabWhoseViewWasReleasedLoadsAnewWhenItIsSelected) {
  app.tap("twoTab");
  app.navigation().topViewController()->childViewControllers()[0]->releaseView();
  take(log);
  app.tap("oneTab");
  EXPECT_THAT(log, ElementsAre("One viewDidLoad", "One viewWillAppear"));
}

TEST_F(UIViewControllerTest, AScreenOnNoStackKnowsNone) {
  EXPECT_EQ(storyboard.instantiateViewControllerWithIdentifier("Detail")->navigationController(),
            nullptr);
  EXPECT_EQ(app.navigation().topViewController()->parentViewController(), nullptr);
}

TEST_F(UIViewControllerTest, AScreenThatGoesLeavesItsTabsScreensWithoutAParent) {
  auto holder = storyboard.instantiateViewControllerWithIdentifier("Home");
  const auto child = holder->childOfScene("One");
  EXPECT_EQ(child->parentViewController(), holder.get());
  holder.reset();
  EXPECT_EQ(child->parentViewController(), nullptr);
  EXPECT_EQ(child->navigationController(), nullptr);
}

TEST_F(UIViewControllerTest, TheNavigationItemHasNoTitleAndShowsItsBackButtonAtFirst) {
  const auto screen = storyboard.instantiateViewControllerWithIdentifier("One");
  EXPECT_EQ(screen->navigationItem().title(), "");
  EXPECT_FALSE(screen->navigationItem().hidesBackButton());
}

class ProbeRowsScreen : public UITableViewController {
 public:
  std::ptrdiff_t numberOfSectionsInTableView(UITableView&) override { return 1; }
  std::ptrdiff_t tableViewNumberOfRowsInSection(UITableView&, std::ptrdiff_t) override { return 2; }
  double tableViewHeightForRowAtIndexPath(UITableView&, NSIndexPath) override { return 30; }
  std::shared_ptr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView&,
                                                                  NSIndexPath) override {
    return nullptr;
  }
  void tableViewWillDisplayCellForRowAtIndexPath(UITableView&,
                                                 const std::shared_ptr<UITableViewCell>&,
                                                 NSIndexPath) override {}
};

TEST(UITableViewControllerTest, ItsRootViewIsATableThatAsksItForItsRows) {
  const auto screen = std::make_shared<ProbeRowsScreen>();
  screen->view();
  EXPECT_EQ(screen->tableView(), screen->viewIfLoaded());
  screen->tableView()->reloadData();
  EXPECT_EQ(screen->tableView()->contentHeight(), 60);
}

class ProbeScreenWithoutTable : public ProbeRowsScreen {
  std::shared_ptr<UIView> makeRootView() override { return std::make_shared<UIView>(); }
};

TEST(UITableViewControllerDeathTest, ATableThatIsNotLoadedOrNotThereIsFatal) {
  EXPECT_DEATH(std::make_shared<ProbeRowsScreen>()->tableView(),
               "Leafund stopped: .*: the table view is absent");
  const auto screen = std::make_shared<ProbeScreenWithoutTable>();
  screen->view();
  EXPECT_DEATH(screen->tableView(), "Leafund stopped: .*: the table view is absent");
}

TEST(UIViewControllerDeathTest, ASegueOutsideAStoryboardIsFatal) {
  EXPECT_DEATH(std::make_shared<UIViewController>()->performSegueWithIdentifierSender("x", nullptr),
               "Leafund stopped: .*: performs a segue outside a storyboard");
}

}  // namespace
}  // namespace leafund
