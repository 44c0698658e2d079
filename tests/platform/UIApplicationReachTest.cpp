#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/uikit/UITableViewController.h"
#include "platform/uikit/UITapGestureRecognizer.h"
#include "tests/support/ProbeScreen.h"
#include "tests/support/ProbeTable.h"

namespace leafund {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// First leads to Second by a button and to itself by nothing; Second has a button too.
class UIApplicationReachTest : public testing::Test {
 protected:
  static void first(Scene<ProbeScreen>& scene, ProbeScreen&) {
    scene.segue(scene.button("nextButton", "Next"), "next");
  }
  void second(Scene<ProbeScreen>& scene, ProbeScreen&) {
    scene.title("Second");
    scene.button("countButton", "Count")
        .addAction("count:", UIControlEvent::TouchUpInside, [this](const Sender&) { ++taps; });
  }
  UIApplication& user() { return *app.application; }

  ProbeLog log;
  int taps = 0;
  UIStoryboard storyboard{
      "First",
      {probeScene(log, "First", first),
       probeScene(log, "Second", [this](auto& scene, auto& screen) { second(scene, screen); })},
      {{"next", "First", "Second", SegueKind::Push}}};
  HeadlessApplication app{storyboard};
};

TEST_F(UIApplicationReachTest, ADoubleTapOnASegueButtonPushesOnce) {
  const auto button = app.view("nextButton");
  user().tap(button);
  user().tap(button);
  EXPECT_THAT(app.stack(), ElementsAre("First", "Second"));
}

TEST_F(UIApplicationReachTest, TwoTapsThatArriveInOneTurnPushOnce) {
  const auto button = app.view("nextButton");
  user().turn([&] {
    user().tap(button);
    user().tap(button);
  });
  EXPECT_THAT(app.stack(), ElementsAre("First", "Second"));
}

TEST_F(UIApplicationReachTest, AHiddenControlIsNotReached) {
  app.tap("nextButton");
  app.view("countButton")->setHidden(true);
  app.tap("countButton");
  EXPECT_EQ(taps, 0);
  app.view("countButton")->setHidden(false);
  app.tap("countButton");
  EXPECT_EQ(taps, 1);
}

TEST_F(UIApplicationReachTest, AControlBelowAHiddenViewIsNotReached) {
  app.tap("nextButton");
  const auto box = std::make_shared<UIView>();
  app.shown()->view()->addSubview(box);
  box->addSubview(app.view("countButton"));
  app.tap("countButton");
  EXPECT_EQ(taps, 1);
  box->setHidden(true);
  app.tap("countButton");
  EXPECT_EQ(taps, 1);
}

TEST_F(UIApplicationReachTest, ACoveredScreenIsReachedAgainWhenItIsUncovered) {
  const auto button = app.view("nextButton");
  app.tap("nextButton");
  EXPECT_FALSE(user().reachable(*button));
  user().goBack();
  EXPECT_TRUE(user().reachable(*button));
}

TEST_F(UIApplicationReachTest, AScreenThatLeftIsNotReachedThoughSomethingHoldsIt) {
  app.tap("nextButton");
  const auto left = app.shown();
  const auto button = app.view("countButton");
  user().goBack();
  EXPECT_FALSE(user().reachable(*button));
  user().tap(button);
  EXPECT_EQ(taps, 0);
}

TEST_F(UIApplicationReachTest, AViewOutsideAnyScreenAndOneThatIsGoneAreNotReached) {
  const auto stray = std::make_shared<UIControl>();
  stray->addAction("count:", UIControlEvent::TouchUpInside, [this](const Sender&) { ++taps; });
  user().tap(stray);
  user().tap(nullptr);
  EXPECT_EQ(taps, 0);
}

TEST_F(UIApplicationReachTest, ACoveredInputIsNeitherEnteredNorEdited) {
  const auto field = std::make_shared<UITextField>();
  app.shown()->view()->addSubview(field);
  app.tap("nextButton");
  user().beginEditing(field);
  user().edit(field, "late");
  EXPECT_FALSE(field->editing());
  EXPECT_EQ(field->text(), "");
}

TEST_F(UIApplicationReachTest, GoingBackEndsEditing) {
  app.tap("nextButton");
  const auto field = std::make_shared<UITextField>();
  app.shown()->view()->addSubview(field);
  user().beginEditing(field);
  user().goBack();
  EXPECT_FALSE(field->editing());
  EXPECT_EQ(user().firstResponder(), nullptr);
}

TEST_F(UIApplicationReachTest, ATapThatNoControlTakesReachesTheRecognizersAboveIt) {
  const auto root = app.shown()->view();
  const auto box = std::make_shared<UIView>();
  root->addSubview(box);
  std::vector<std::string> recognized;
  const auto recognizer = [&](const char* name) {
    return std::make_shared<UITapGestureRecognizer>(name,
                                                    [&, name] { recognized.push_back(name); });
  };
  box->addGestureRecognizer(recognizer("box"));
  root->addGestureRecognizer(recognizer("root"));
  user().tap(box);
  EXPECT_THAT(recognized, ElementsAre("box", "root"));
  user().tap(root);
  EXPECT_THAT(recognized, ElementsAre("box", "root", "root"));
  EXPECT_EQ(root->gestureRecognizers()[0]->action(), "root");
  app.tap("nextButton");
  EXPECT_EQ(recognized.size(), 3U);
}

TEST_F(UIApplicationReachTest, ARecognizerMayTakeItsOwnViewAway) {
  auto box = std::make_shared<UIView>();
  const auto inner = std::make_shared<UIView>();
  app.shown()->view()->addSubview(box);
  box->addSubview(inner);
  int second = 0;
  box->addGestureRecognizer(std::make_shared<UITapGestureRecognizer>("remove", [&] {
    box->removeFromSuperview();
    box.reset();
  }));
  box->addGestureRecognizer(std::make_shared<UITapGestureRecognizer>("count", [&] { ++second; }));
  user().tap(inner);
  EXPECT_EQ(inner->superview(), nullptr);
  EXPECT_EQ(second, 1);
}

class RowsScreen : public UITableViewController {
 public:
  std::vector<Sender> senders;
  void viewWillAppear(bool) override { tableView()->reloadData(); }
  void prepareForSegueSender(UIStoryboardSegue&, const Sender& sender) override {
    senders.push_back(sender);
  }
  std::ptrdiff_t numberOfSectionsInTableView(UITableView&) override { return 1; }
  std::ptrdiff_t tableViewNumberOfRowsInSection(UITableView&, std::ptrdiff_t) override {
    return 20;
  }
  double tableViewHeightForRowAtIndexPath(UITableView&, NSIndexPath) override { return 100; }
  std::shared_ptr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView& table,
                                                                  NSIndexPath path) override {
    return table.dequeueReusableCellWithIdentifierForIndexPath("row", path);
  }
  void tableViewWillDisplayCellForRowAtIndexPath(UITableView&,
                                                 const std::shared_ptr<UITableViewCell>&,
                                                 NSIndexPath) override {}
};

class UIApplicationRowTest : public testing::Test {
 protected:
  static void rows(Scene<RowsScreen>& scene, RowsScreen&) { scene.subtitleCell("row", "open"); }

  ProbeLog log;
  UIStoryboard storyboard{"Rows",
                          {scene<RowsScreen>("Rows", rows), probeScene(log, "Detail")},
                          {{"open", "Rows", "Detail", SegueKind::Push}}};
  HeadlessApplication app{storyboard};
};

TEST_F(UIApplicationRowTest, ATappedRowStartsItsSegueWithTheCellAsSenderOnce) {
  const auto rows = app.shownAs<RowsScreen>();
  const auto cell = rows->tableView()->visibleCells().at(2);
  app.application->tap(cell);
  app.application->tap(cell);
  EXPECT_THAT(rows->senders, ElementsAre(cell));
  EXPECT_THAT(app.stack(), ElementsAre("Rows", "Detail"));
}

TEST_F(UIApplicationRowTest, ATappedRowLeavesTheInputThatIsBeingEdited) {
  const auto table = app.shownAs<RowsScreen>()->tableView();
  const auto field = std::make_shared<UITextField>();
  table->addSubview(field);
  app.application->beginEditing(field);
  ASSERT_TRUE(field->editing());
  app.application->tap(table->visibleCells().at(2));
  EXPECT_FALSE(field->editing());
}

TEST(UIApplicationTableTest, APooledRowIsNotReached) {
  ProbeTable probe(20);
  const auto cell = probe.cell(0);
  EXPECT_TRUE(probe.app.application->reachable(*cell));
  EXPECT_TRUE(probe.app.application->reachable(*cell->textLabel()));
  probe.rows->count = 0;
  probe.reload();
  EXPECT_FALSE(probe.app.application->reachable(*cell));
  EXPECT_FALSE(probe.app.application->reachable(*cell->textLabel()));
  probe.app.application->tap(cell);
  EXPECT_THAT(probe.app.stack(), ElementsAre("Table"));
}

TEST(UIApplicationTableTest, ACoveredTableDoesNotScroll) {
  ProbeTable probe(20);
  const auto table = std::static_pointer_cast<UITableView>(probe.app.shown()->view());
  probe.app.application->scroll(nullptr, 100);
  table->setHidden(true);
  probe.app.application->scroll(table, 100);
  EXPECT_EQ(table->contentOffset().y, 0);
  table->setHidden(false);
  probe.app.application->scroll(table, 100);
  EXPECT_EQ(table->contentOffset().y, 100);
}

}  // namespace
}  // namespace leafund
