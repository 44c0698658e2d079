#include <QWheelEvent>

#include "tests/support/FrameClock.h"
#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

constexpr int kFrame = 16;        // milliseconds
constexpr int kMostFrames = 400;  // a fling takes 2 to 3 seconds

// A list that is flung, frame by frame.
class FlingTest : public WindowTest {
 protected:
  double offset() { return app.require("table").property("contentY").toDouble(); }
  bool moving() { return app.require("table").property("moving").toBool(); }

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
  // Until nobody sees it move any more.
  void seemToRest() {
    constexpr int kLooked = 12;  // frames, too short for an impatient hand
    for (int still = 0; still < kLooked;) {
      const double before = offset();
      frame();
      still = std::abs(offset() - before) < 0.5 ? still + 1 : 0;
    }
  }
  void fling(double pointsPerSecond) {
    QMetaObject::invokeMethod(&app.require("table"), "flick", Q_ARG(double, 0),
                              Q_ARG(double, pointsPerSecond));
    rest();
  }
  void turnWheel() {
    startWheel();
    rest();
  }
  static constexpr int kNotch = 120;  // eighths of a degree; a finer wheel tells of less at a time
  void startWheel(int eighths = kNotch) {
    const QPointF at(200, 400);
    QWheelEvent event(at, app.window().mapToGlobal(at), {}, {0, -eighths}, {}, {},
                      Qt::NoScrollPhase, false);
    event.setTimestamp(static_cast<quint64>(clock->now() + 300));
    QCoreApplication::sendEvent(&app.window(), &event);
  }

  FrameClock* clock = nullptr;  // once the screen stands
};

// Some of these are then past their end, by less than anybody sees, and go back by themselves. Who
// was put back instead did not move at the next turn of the wheel.
TEST_F(FlingTest, AFlingThatEndsWithAFrameLeavesTheListToTheWheel) {
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
    turnWheel();
    EXPECT_GT(offset(), 10);
    EXPECT_FALSE(moving());
  }
}

// Else a click would stop it, and not reach what it meant.
TEST_F(FlingTest, WhatNobodySeesMoveIsAtRest) {
  signIn();
  FrameClock passing;
  clock = &passing;
  const auto& list = app.require("table");
  const double length = list.property("contentHeight").toDouble() - list.height();
  while (offset() < length - 1) {
    SCOPED_TRACE(offset());
    startWheel();
    seemToRest();
    EXPECT_FALSE(moving());
    rest();
  }
}

// Slowly drawn over a touchpad that is told as a wheel two fingers would move nothing.
TEST_F(FlingTest, AFineWheelScrollsAsFarAsANotchedOne) {
  signIn();
  FrameClock passing;
  clock = &passing;
  turnWheel();
  const double byNotch = offset();
  ASSERT_GT(byNotch, 10);
  for (int turned = 0; turned < kNotch; turned += kNotch / 8) {
    EXPECT_EQ(offset(), byNotch);
    startWheel(kNotch / 8);
  }
  rest();
  EXPECT_NEAR(offset(), 2 * byNotch, 1);
}

// As is one that takes back just what a fling had left. Qt never hears of the end of a movement to
// where the list already is, and would take the next click for a stop.
TEST_F(FlingTest, ATurnThatMovesNothingLeavesTheListAtRest) {
  signIn();
  FrameClock passing;
  clock = &passing;
  QWheelEvent finest({200, 400}, {200, 400}, {}, {0, -1}, {}, {}, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&app.require("table"), &finest);
  rest();
  EXPECT_EQ(offset(), 0);
  EXPECT_FALSE(moving());
}

}  // namespace
}  // namespace leafund
