#include <gtest/gtest.h>

#include <algorithm>

#include "tests/random/Shrinker.h"

namespace leafund::random {
namespace {

Script numbered(long count) {
  Script script;
  for (long at = 0; at < count; ++at) script.push_back({.kind = ActionKind::TapRow, .number = at});
  return script;
}

bool holds(const Script& script, long number) {
  return std::any_of(script.begin(), script.end(),
                     [&](const Action& action) { return action.number == number; });
}

TEST(ShrinkerTest, WhatIsLeftIsWhatTheFailureNeedsInItsOrder) {
  const auto script = shrink(numbered(500), [](const Script& each) {
    return holds(each, 3) && holds(each, 251) && holds(each, 499);
  });
  ASSERT_EQ(script.size(), 3U);
  EXPECT_EQ(script[0].number, 3);
  EXPECT_EQ(script[1].number, 251);
  EXPECT_EQ(script[2].number, 499);
}

TEST(ShrinkerTest, AFailureThatNeedsEverythingKeepsEverything) {
  const auto whole = numbered(9);
  EXPECT_EQ(shrink(whole, [&](const Script& each) { return each == whole; }), whole);
}

TEST(ShrinkerTest, AFailureThatNeedsNothingKeepsNothing) {
  EXPECT_TRUE(shrink(numbered(40), [](const Script&) { return true; }).empty());
}

TEST(ShrinkerTest, AnActionIsToldInOnePrintableLine) {
  EXPECT_EQ(readable(Action{.kind = ActionKind::Type, .name = "userEmail", .text = "a\n\"\xC3"}),
            "type userEmail \"a\\x0a\\x22\\xc3\"");
  EXPECT_EQ(readable(Action{.kind = ActionKind::Resize, .width = 320, .height = 568}),
            "resize to 320 x 568");
}

}  // namespace
}  // namespace leafund::random
