#include <QWheelEvent>

#include "tests/support/FrameClock.h"
#include "tests/window/FingerFixture.h"

namespace leafund {
namespace {

constexpr int kFrame = 16;        // milliseconds
constexpr int kMostFrames = 400;  // a fling takes 2 to 3 seconds

// A list that is flung, frame by frame.
class FlingTest : public FingerTest {
 protected:
  double offset() { return app.require("table").property("contentY").toDouble(); }
  bool moving() { return app.require("table").property("moving").toBool(); }

  static QQuickItem& flickableOf(QQuickItem& item) {
    auto* each = &item;
    while (!each->property("contentY").isValid()) each = each->parentItem();
    return *each;
  }

  void frame() {
    QCoreApplication::processEvents();
    clock->pass(kFrame);
    QEvent draw(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&app.window(), &draw);
    QCoreApplication::processEvents();
  }
  // Until nothing is animated any more.
  void rest() {
    for (int frames = 0; frames < kMostFrames && (frames < 3 || clock->isRunning()); ++frames)
      frame();
    EXPECT_FALSE(clock->isRunning());
  }
  void fling(double pointsPerSecond) {
    QMetaObject::invokeMethod(&app.require("table"), "flick", Q_ARG(double, 0),
                              Q_ARG(double, pointsPerSecond));
    rest();
  }
  static constexpr int kNotch = 120;          // eighths of a degree
  static constexpr int kStep = 80;            // points that one leads
  static constexpr int kOvershootBounds = 2;  // of Flickable
  void turnWheel(int eighths, QPoint points = {}, Qt::ScrollPhase phase = Qt::NoScrollPhase) {
    const QPointF at(200, 400);
    QWheelEvent event(at, app.window().mapToGlobal(at), points, {0, eighths}, {}, {}, phase, false);
    QCoreApplication::sendEvent(&app.window(), &event);
  }

  FrameClock* clock = nullptr;  // once the screen stands
};

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

TEST_F(FlingTest, ANotchOfTheWheelIsAStepAtOnceAndNoFurtherThanTheEnds) {
  signIn();
  const auto& list = app.require("table");
  const double length = list.property("contentHeight").toDouble() - list.height();
  for (int notches = 1; notches < 10; ++notches) {
    turnWheel(-kNotch);
    EXPECT_EQ(offset(), std::min(length, notches * 1.0 * kStep));
    EXPECT_FALSE(moving());
  }
  turnWheel(2 * kNotch);
  EXPECT_EQ(offset(), length - 2 * kStep);
  turnWheel(20 * kNotch);
  EXPECT_EQ(offset(), 0);
}

// Slowly drawn over a touchpad that is told as a wheel two fingers would else move nothing.
TEST_F(FlingTest, AFineWheelScrollsAsFarAsANotchedOne) {
  signIn();
  for (int turned = 0; turned < kNotch; turned += 8) turnWheel(-8);
  EXPECT_NEAR(offset(), kStep, 0.001);
}

TEST_F(FlingTest, ATouchpadThatTellsOfPointsIsFollowedToThePoint) {
  signIn();
  turnWheel(0, {}, Qt::ScrollBegin);
  for (int i = 0; i < 7; ++i) turnWheel(-36, {0, -3}, Qt::ScrollUpdate);
  turnWheel(0, {}, Qt::ScrollEnd);
  EXPECT_EQ(offset(), 21);
}

TEST_F(FlingTest, TheWheelTakesOverFromAFling) {
  signIn();
  FrameClock passing;
  clock = &passing;
  const double length =
      app.require("table").property("contentHeight").toDouble() - app.require("table").height();
  for (const int notches : {1, -1, -20}) {
    SCOPED_TRACE(notches);
    app.require("table").setProperty("contentY", 0);
    QMetaObject::invokeMethod(&app.require("table"), "flick", Q_ARG(double, 0),
                              Q_ARG(double, -1500));
    for (int frames = 0; frames < 8; ++frames) frame();
    const double before = offset();
    ASSERT_GT(before, kStep);
    turnWheel(notches * kNotch);
    const double led = std::min(length, before - notches * kStep);
    EXPECT_EQ(offset(), led);
    EXPECT_FALSE(moving());
    frame();
    EXPECT_EQ(offset(), led);
    rest();
    EXPECT_EQ(offset(), led);
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
