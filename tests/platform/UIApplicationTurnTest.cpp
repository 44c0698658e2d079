#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/uikit/UINavigationController.h"
#include "tests/support/HeadlessApplication.h"
#include "tests/support/ProbeDelegate.h"
#include "tests/support/ProbeHost.h"
#include "tests/support/ProbeScreen.h"
#include "tests/support/ProbeSkin.h"

namespace leafund {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

// What debug builds say; a user's build keeps quiet.
#ifdef NDEBUG
constexpr const char* kComplaint = "";
#else
constexpr const char* kComplaint = "turn: the layout does not settle\n";
#endif

std::string complaintOf(const std::function<void()>& work) {
  testing::internal::CaptureStderr();
  work();
  return testing::internal::GetCapturedStderr();
}

class LayoutProbe : public UIView {
 public:
  std::function<void()> onLayout = [] {};
  void layoutSubviews() override { onLayout(); }
};

// A screen with one view that lays out and wears a skin; every step of a turn writes itself down.
class UIApplicationTurnTest : public testing::Test {
 protected:
  UIApplicationTurnTest() {
    application->launch();
    application->navigation()->topViewController()->view()->addSubview(view);
    view->onLayout = [this] { log.push_back("layout"); };
    host.onShow = [this] { log.push_back("show"); };
    skin = std::make_unique<ProbeSkin>(view, [this] {
      log.push_back("refresh");
      if (auto once = std::exchange(onceAtRefresh, nullptr)) once();
    });
    take(log);
  }
  UINavigationItem& bar() {
    return application->navigation()->topViewController()->navigationItem();
  }
  // Something for every step of a turn.
  void changeAll() {
    view->setHidden(!view->hidden());
    bar().setTitle("changed");
    view->setNeedsLayout();
  }

  ProbeLog log;
  UIStoryboard storyboard{"Only", {probeScene(log, "Only")}, {}};
  ProbeHost host;
  std::shared_ptr<UIApplication> application =
      std::make_shared<UIApplication>(host, storyboard, std::make_shared<ProbeDelegate>(log));
  std::shared_ptr<LayoutProbe> view = std::make_shared<LayoutProbe>();
  std::function<void()> onceAtRefresh;
  std::unique_ptr<ProbeSkin> skin;
};

TEST_F(UIApplicationTurnTest, LogicRunsToItsEndThenLayoutThenTheStackIsShownThenSkinsRefresh) {
  application->turn([&] {
    changeAll();
    log.push_back("logic");
  });
  EXPECT_THAT(log, ElementsAre("logic", "layout", "show", "refresh"));
}

TEST_F(UIApplicationTurnTest, WhatChangedManyTimesIsTakenUpOnce) {
  application->turn([&] {
    for (int i = 0; i < 4; ++i) changeAll();
    view->layer().setCornerRadius(1);
  });
  EXPECT_THAT(log, ElementsAre("layout", "show", "refresh"));
}

TEST_F(UIApplicationTurnTest, ATurnThatChangesNothingShowsNothing) {
  application->turn([] {});
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(UIApplicationTurnTest, AnEventRaisedByLogicWaitsUntilTheWindowHasFollowed) {
  application->turn([&] {
    application->turn([&] { log.push_back("raised"); });
    changeAll();
    log.push_back("logic");
  });
  EXPECT_THAT(log, ElementsAre("logic", "layout", "show", "refresh", "raised"));
}

TEST_F(UIApplicationTurnTest, AnEventRaisedByASkinRunsBehindTheRefreshesAndNeverInsideOne) {
  const auto other = std::make_shared<UIView>();
  ProbeSkin otherSkin(other, [&] { log.push_back("other refresh"); });
  onceAtRefresh = [&] {
    application->turn([&] { log.push_back("raised"); });
    log.push_back("refresh ends");
  };
  application->turn([&] {
    view->setHidden(true);
    other->setHidden(true);
  });
  EXPECT_THAT(log, ElementsAre("refresh", "refresh ends", "other refresh", "raised"));
}

TEST_F(UIApplicationTurnTest, EventsRaisedMeanwhileRunInTheirOrder) {
  application->turn([&] {
    for (const char* name : {"one", "two", "three"}) {
      application->turn([&, name] { log.push_back(name); });
    }
  });
  EXPECT_THAT(log, ElementsAre("one", "two", "three"));
}

TEST_F(UIApplicationTurnTest, AChangeMadeByARefreshIsShownInTheSameTurn) {
  onceAtRefresh = [&] { changeAll(); };
  application->turn([&] { view->setHidden(true); });
  EXPECT_THAT(log, ElementsAre("refresh", "layout", "show", "refresh"));
}

TEST_F(UIApplicationTurnTest, ALayoutThatAsksForAnotherSettles) {
  int left = 50;
  view->onLayout = [&] {
    if (--left > 0) view->setNeedsLayout();
  };
  application->turn([&] { view->setNeedsLayout(); });
  EXPECT_EQ(left, 0);
}

TEST_F(UIApplicationTurnTest, AfterATurnTheNextOneBeginsAtOnce) {
  int turns = 0;
  for (int i = 0; i < 1000; ++i) application->turn([&] { ++turns; });
  EXPECT_EQ(turns, 1000);
}

TEST_F(UIApplicationTurnTest, AViewThatGoesBeforeItsLayoutIsPassedOver) {
  application->turn([&] {
    auto passing = std::make_shared<LayoutProbe>();
    passing->onLayout = [&] { log.push_back("passing"); };
    passing->setNeedsLayout();
  });
  EXPECT_THAT(log, IsEmpty());
}

// A user keeps the window: what is left waits for the next pass of the host's loop.
TEST_F(UIApplicationTurnTest, ALayoutThatNeverSettlesIsGivenUpAndGoesOnInTheNextPass) {
  int layouts = 0;
  view->onLayout = [&] {
    ++layouts;
    view->setNeedsLayout();
  };
  EXPECT_EQ(complaintOf([&] { application->turn([&] { view->setNeedsLayout(); }); }), kComplaint);
  EXPECT_TRUE(application->stalled());
  EXPECT_EQ(layouts, 101);  // with the round that took the work
  ASSERT_THAT(host.steps, SizeIs(1));
  view->onLayout = [&] { ++layouts; };
  application->turn(host.steps[0]);
  EXPECT_EQ(layouts, 102);
  EXPECT_FALSE(application->stalled());
}

TEST_F(UIApplicationTurnTest, EventsBeforeTheNextPassDoNotMultiplyWhatIsLeft) {
  view->onLayout = [&] { view->setNeedsLayout(); };
  complaintOf([&] {
    for (int i = 0; i < 3; ++i) application->turn([&] { view->setNeedsLayout(); });
  });
  ASSERT_THAT(host.steps, SizeIs(1));
  complaintOf([&] { application->turn(host.steps[0]); });
  EXPECT_THAT(host.steps, SizeIs(2));
}

TEST_F(UIApplicationTurnTest, ASkinThatChangesItsViewAtEveryRefreshIsGivenUp) {
  ProbeSkin restless(view, [this] { view->setHidden(!view->hidden()); });
  EXPECT_EQ(complaintOf([&] { application->turn([&] { view->setHidden(true); }); }), kComplaint);
  EXPECT_THAT(host.steps, SizeIs(1));
}

TEST_F(UIApplicationTurnTest, WorkThatRaisesWorkForEverIsGivenUp) {
  const std::function<void()> again = [&] { application->turn(again); };
  EXPECT_EQ(complaintOf([&] { application->turn(again); }), kComplaint);
  EXPECT_TRUE(application->stalled());
}

TEST_F(UIApplicationTurnTest, MuchWorkThatWaitsIsNoFault) {
  int done = 0;
  application->turn([&] {
    for (int i = 0; i < 1000; ++i) application->turn([&] { ++done; });
  });
  EXPECT_EQ(done, 1000);
  std::function<void(int)> chain = [&](int left) {
    if (left > 0) application->turn([&, left] { chain(left - 1); });
  };
  application->turn([&] { chain(1000); });
  EXPECT_FALSE(application->stalled());
  EXPECT_THAT(host.steps, IsEmpty());
}

using UIApplicationTurnDeathTest = UIApplicationTurnTest;

// It has no loop that could go on.
TEST_F(UIApplicationTurnDeathTest, OnAHostWithoutALoopALayoutThatNeverSettlesIsFatal) {
  HeadlessApplication app(storyboard);
  app.shown()->view()->addSubview(view);
  view->onLayout = [this] { view->setNeedsLayout(); };
  EXPECT_DEATH(app.application->turn([&] { view->setNeedsLayout(); }),
               "Leafund stopped: turn: the layout does not settle");
  const auto drain = [&] {
    app.host.post([&] { view->setNeedsLayout(); });
    app.host.drainMainQueue();
  };
  EXPECT_DEATH(drain(), "Leafund stopped: turn: the layout does not settle");
}

}  // namespace
}  // namespace leafund
