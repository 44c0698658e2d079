#include "tests/window/FlingFixture.h"

namespace leafund {
namespace {

using WheelScrollTest = FlingFixture;

TEST_F(WheelScrollTest, ANotchOfTheWheelIsAStepAtOnceAndNoFurtherThanTheEnds) {
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
TEST_F(WheelScrollTest, AFineWheelScrollsAsFarAsANotchedOne) {
  signIn();
  for (int turned = 0; turned < kNotch; turned += 8) turnWheel(-8);
  EXPECT_NEAR(offset(), kStep, 0.001);
}

TEST_F(WheelScrollTest, ATouchpadThatTellsOfPointsIsFollowedToThePoint) {
  signIn();
  turnWheel(0, {}, Qt::ScrollBegin);
  for (int i = 0; i < 7; ++i) turnWheel(-36, {0, -3}, Qt::ScrollUpdate);
  turnWheel(0, {}, Qt::ScrollEnd);
  EXPECT_EQ(offset(), 21);
}

TEST_F(WheelScrollTest, TheWheelTakesOverFromAFling) {
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

}  // namespace
}  // namespace leafund
