#include "tests/window/FlingFixture.h"

namespace leafund {
namespace {

using FlingTest = FlingFixture;

// Some of these are then past their end, by less than anybody sees, and go back by themselves. Who
// was put back instead would move for ever.
TEST_F(FlingTest, AFlingThatEndsWithAFrameIsAtRest) {
  signIn();
  FrameClock passing;
  clock = &passing;
  auto& list = app.require("table");
  const double length = list.property("contentHeight").toDouble() - list.height();
  for (int frames = 20; frames < 40; ++frames) {
    SCOPED_TRACE(frames);
    list.setProperty("contentY", length);
    rest();
    fling(2 * length / (0.001 * kFrame * frames));
    EXPECT_NEAR(offset(), 0, 0.001);
    EXPECT_FALSE(moving());
  }
}

// Rounding leads one past its end now and then, and Qt swings on and back. Here it goes there each
// time.
TEST_F(FlingTest, AFlingStopsAtItsEnd) {
  app.window().resize(390, 300);
  signIn();
  click("mineTab");
  click("newButton");
  FrameClock passing;
  clock = &passing;
  auto& pane = flickableOf(app.require("createButton"));
  const auto place = [&] { return pane.property("contentY").toDouble(); };
  const double length = pane.property("contentHeight").toDouble() - pane.height();
  pane.setProperty("boundsBehavior", kOvershootBounds);
  for (const double end : {0.0, length}) {
    pane.setProperty("contentY", length / 2);
    QMetaObject::invokeMethod(&pane, "flick", Q_ARG(double, 0),
                              Q_ARG(double, end == 0 ? 3000 : -3000));
    int past = 0;
    for (int frames = 0; frames < 100; ++frames) {
      frame();
      past += place() < 0 || place() > length;
    }
    EXPECT_EQ(past, 0);
    EXPECT_EQ(place(), end);
    EXPECT_FALSE(pane.property("moving").toBool());
  }
}

// And not a step later, when the place that it tells is refused.
TEST_F(FlingTest, AFlingEndsAtOnceWhereItsListIsCovered) {
  signIn();
  FrameClock passing;
  clock = &passing;
  auto& list = app.require("table");
  QMetaObject::invokeMethod(&list, "flick", Q_ARG(double, 0), Q_ARG(double, -1500));
  for (int frames = 0; frames < 8; ++frames) frame();
  ASSERT_TRUE(moving());
  app.click(app.require("newsTab"));
  EXPECT_FALSE(list.property("moving").toBool());
}

TEST_F(FlingTest, AFlingOfAPageEndsWhereItIsCovered) {
  app.window().resize(390, 420);
  ASSERT_TRUE(app.waitUntil([&] { return app.page()->height() == 420; }));
  signIn();
  app.click(app.require("newsTab"));
  app.settle();
  FrameClock passing;
  clock = &passing;
  auto& page = flickableOf(app.require("rideStoryTitle"));
  QMetaObject::invokeMethod(&page, "flick", Q_ARG(double, 0), Q_ARG(double, -1500));
  for (int frames = 0; frames < 8; ++frames) frame();
  ASSERT_TRUE(page.property("moving").toBool());
  app.click(app.require("mineTab"));
  EXPECT_FALSE(page.property("moving").toBool());
}

// It would else say for ever that it moves, and swallow the next click.
TEST_F(FlingTest, AFlingEndsWhereANewSizePutsTheEnd) {
  signIn();
  FrameClock passing;
  clock = &passing;
  auto& list = app.require("table");
  const auto end = [&] { return list.property("contentHeight").toDouble() - list.height(); };
  for (const double within : {5, 40, 120, 300}) {
    app.window().resize(390, 844);
    rest();
    list.setProperty("contentY", 0);
    QMetaObject::invokeMethod(&list, "flick", Q_ARG(double, 0), Q_ARG(double, -3000));
    for (int frames = 0; frames < kMostFrames && offset() < end() - within; ++frames) frame();
    ASSERT_TRUE(list.property("moving").toBool()) << within;
    app.window().resize(390, 904);
    for (int frames = 0; frames < 20; ++frames) {
      QCoreApplication::processEvents();
      clock->pass(kFrame);  // what is drawn now
      EXPECT_LT(offset(), end() + 1) << "resized " << within << " points before the end";
    }
    rest();
    EXPECT_LE(offset(), end());
  }
}

// The list has no hold of a finger that catches it slowly, and is not told where that is lifted. It
// would move for ever, and the next tap would only stop it.
TEST_F(FlingTest, AFingerThatCatchesAFlingAndIsLiftedOutsideEndsIt) {
  app.window().resize(390, 300);
  signIn();
  FrameClock passing;
  clock = &passing;
  auto& list = app.require("table");
  const auto finger = [&] { return QTest::touchEvent(&app.window(), finger_.get(), false); };
  const QPoint on = list.mapToScene({195, list.height() / 2}).toPoint();
  for (const int speed : {1500, 300, 60}) {
    for (const QPoint way : {QPoint(0, 100), QPoint(0, -150)}) {
      SCOPED_TRACE(speed);
      list.setProperty("contentY", 500);
      rest();
      QMetaObject::invokeMethod(&list, "flick", Q_ARG(double, 0), Q_ARG(double, -speed));
      frame();
      ASSERT_TRUE(list.property("moving").toBool());
      finger().press(0, on).commit(false);
      finger().move(0, on + way).commit(false);
      finger().release(0, on + way).commit(false);
      rest();
      EXPECT_FALSE(moving());
    }
  }
  app.click(app.require("newsTab"));
  EXPECT_EQ(app.shown()->className(), "NewsFeedVC");
}

// A pane that goes back to its end has let go, and what lies beside it is clicked as ever.
TEST_F(FlingTest, APaneThatReturnsToItsEndLeavesAClickToBack) {
  signIn();
  click("abc-0");
  FrameClock passing;
  clock = &passing;
  auto& pane = flickableOf(app.require("campaignDescription"));
  pane.setProperty("contentY", pane.property("contentHeight").toDouble() - pane.height() - 0.1);
  rest();
  QTest::mousePress(&app.window(), Qt::LeftButton, {}, {347, 560});
  for (int y = 550; y > 100; y -= 50) QTest::mouseMove(&app.window(), {347, y});
  QTest::mouseRelease(&app.window(), Qt::LeftButton, {}, {347, 100});
  ASSERT_TRUE(pane.property("moving").toBool());
  app.click(app.require("backButton"));
  EXPECT_EQ(app.navigation().topViewController()->className(), "TabBarVC");
}

TEST_F(FlingTest, ARightClickStopsAFling) {
  signIn();
  FrameClock passing;
  clock = &passing;
  QMetaObject::invokeMethod(&app.require("table"), "flick", Q_ARG(double, 0), Q_ARG(double, -1500));
  for (int frames = 0; frames < 8; ++frames) frame();
  ASSERT_TRUE(moving());
  QTest::mouseClick(&app.window(), Qt::RightButton, {}, {200, 400});
  rest();
  EXPECT_FALSE(moving());
}

}  // namespace
}  // namespace leafund
