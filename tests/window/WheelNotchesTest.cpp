#include <gtest/gtest.h>

#include "platform/qt/WheelNotches.h"

namespace leafund {
namespace {

TEST(WheelNotchesTest, TurnsOfANotchArePassedOn) {
  WheelNotches notches;
  EXPECT_EQ(notches.add(120, 1000), 120);
  EXPECT_EQ(notches.add(-120, 1001), -120);
  EXPECT_EQ(notches.add(-360, 1002), -360);
}

TEST(WheelNotchesTest, FineTurnsAreGatheredAndNoneIsLost) {
  WheelNotches notches;
  EXPECT_EQ(notches.add(-100, 1000), 0);
  EXPECT_EQ(notches.add(-100, 1010), -120);
  EXPECT_EQ(notches.add(-39, 1020), 0);
  EXPECT_EQ(notches.add(-1, 1030), -120);
}

TEST(WheelNotchesTest, ATurnTheOtherWayBeginsAnew) {
  WheelNotches notches;
  notches.add(100, 1000);
  EXPECT_EQ(notches.add(-100, 1010), 0);
  EXPECT_EQ(notches.add(-20, 1020), -120);
}

TEST(WheelNotchesTest, ATurnAfterAPauseBeginsAnew) {
  WheelNotches notches;
  notches.add(100, 1000);
  EXPECT_EQ(notches.add(100, 1501), 0);
  EXPECT_EQ(notches.add(20, 2001), 120);
}

}  // namespace
}  // namespace leafund
