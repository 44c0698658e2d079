#include <gtest/gtest.h>

#include <limits>

#include "platform/uikit/UIProgressView.h"

namespace leafund {
namespace {

TEST(UIProgressViewTest, KeepsWhatItWasGivenAndDrawsItClamped) {
  UIProgressView bar;
  bar.setProgressAnimated(7.5F, false);
  EXPECT_EQ(bar.progress(), 7.5F);
  EXPECT_EQ(bar.shownProgress(), 1.0F);
  bar.setProgressAnimated(-std::numeric_limits<float>::infinity(), false);
  EXPECT_EQ(bar.shownProgress(), 0.0F);
}

TEST(UIProgressViewTest, WhatIsNotANumberIsDrawnEmpty) {
  UIProgressView bar;
  bar.setProgressAnimated(std::numeric_limits<float>::quiet_NaN(), true);
  EXPECT_NE(bar.progress(), bar.progress());
  EXPECT_EQ(bar.shownProgress(), 0.0F);
}

TEST(UIProgressViewTest, AnAnimatedChangeRemembersWhereItBegan) {
  UIProgressView bar;
  bar.setProgressAnimated(0.0F, true);
  bar.setProgressAnimated(0.6F, true);
  EXPECT_EQ(bar.animatedFrom(), 0.0F);
  bar.setProgressAnimated(0.7F, false);
  EXPECT_EQ(bar.animatedFrom(), 0.7F);
}

}  // namespace
}  // namespace leafund
