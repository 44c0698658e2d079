#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/random/Comparison.h"
#include "tests/random/Runner.h"
#include "tests/random/WindowSequence.h"

namespace leafund::random {
namespace {

using testing::HasSubstr;

class WindowActionsTest : public testing::Test {
 protected:
  WindowActionsTest() { warmUp(); }

  // To shrink a difference would take longer than a test may: the command does it.
  void expectAgreement(std::uint64_t firstSeed) {
    const auto diverged = run({.actions = 300, .firstSeed = firstSeed, .fatalPercent = 10});
    EXPECT_FALSE(diverged) << totals.told << "To see it again and shrunk: random_window --longest "
                           << kLongest << " --fatal-share 10 --replay " << diverged->seed;
  }
  // What is told of the first difference.
  std::string expectDivergence(Order order) {
    order.actions = 2000;
    order.fatalPercent = 0;
    EXPECT_TRUE(run(order)) << "not noticed";
    return totals.told;
  }
  std::optional<Plan> run(Order order) {
    order.most = kLongest;
    order.play = playInWindow;
    return runSequences(order, wording, totals);
  }

  static constexpr std::size_t kLongest = 100;
  FreeWording wording = wordingOfTheApplication();
  Totals totals;
};

// Four of them, so that a suite that runs its tests at once takes a quarter of the time.
TEST_F(WindowActionsTest, TheWindowAgreesAfterEveryAction) { expectAgreement(1); }
TEST_F(WindowActionsTest, TheWindowAgreesAfterOtherActions) { expectAgreement(1'001); }
TEST_F(WindowActionsTest, TheWindowAgreesAfterMoreActions) { expectAgreement(2'001); }
TEST_F(WindowActionsTest, TheWindowAgreesAfterStillMoreActions) { expectAgreement(3'001); }

TEST_F(WindowActionsTest, ATapThatIsLostOnItsWayWouldBeNoticed) {
  EXPECT_THAT(expectDivergence({.twist = Twist::TapIsLost}), HasSubstr("was: nothing"));
}

TEST_F(WindowActionsTest, APledgeThatIsLostWouldBeNoticed) {
  EXPECT_THAT(expectDivergence({.twist = Twist::PledgeIsLost}), HasSubstr("raised"));
}

TEST_F(WindowActionsTest, AnItemThatIsNotSeenWouldBeNoticed) {
  EXPECT_THAT(expectDivergence({.tamperAt = 2}), HasSubstr("visible is 0 instead of 1"));
}

}  // namespace
}  // namespace leafund::random
