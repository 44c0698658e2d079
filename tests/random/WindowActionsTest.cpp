#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/random/Comparison.h"
#include "tests/random/Runner.h"
#include "tests/random/Shrinker.h"
#include "tests/random/WindowSequence.h"

namespace leafund::random {
namespace {

using testing::HasSubstr;

class WindowActionsTest : public testing::Test {
 protected:
  WindowActionsTest() { warmUp(); }

  void expectAgreement(std::uint64_t firstSeed) {
    const auto diverged = run({.actions = 300, .firstSeed = firstSeed, .fatalPercent = 10});
    if (!diverged) return;
    const auto failure = shrinkFailure(*diverged, wording);
    std::string script;
    for (const auto& action : failure.script) script += readable(action) + '\n';
    ADD_FAILURE() << "random_window --replay " << diverged->seed << '\n' << script << failure.told;
  }
  // What is told of the first difference.
  std::string expectDivergence(Order order) {
    order.actions = 2000;
    order.fatalPercent = 0;
    const auto diverged = run(order);
    EXPECT_TRUE(diverged) << "not noticed";
    return diverged ? toldBy(runSequence(*diverged, wording)) : "";
  }
  std::optional<Plan> run(Order order) {
    order.most = 100;
    order.play = playInWindow;
    Totals totals;
    return runSequences(order, wording, totals);
  }

  FreeWording wording = wordingOfTheApplication();
};

// Four of them, so that a suite that runs its tests at once takes a quarter of the time.
TEST_F(WindowActionsTest, TheWindowAgreesAfterEveryAction) { expectAgreement(1); }
TEST_F(WindowActionsTest, TheWindowAgreesAfterOtherActions) { expectAgreement(1'001); }
TEST_F(WindowActionsTest, TheWindowAgreesAfterMoreActions) { expectAgreement(2'001); }
TEST_F(WindowActionsTest, TheWindowAgreesAfterStillMoreActions) { expectAgreement(3'001); }

TEST_F(WindowActionsTest, ATapThatIsLostOnItsWayWouldBeNoticed) {
  EXPECT_THAT(expectDivergence({.twist = Twist::TapIsLost}), HasSubstr("was: nothing"));
}

TEST_F(WindowActionsTest, AnItemThatIsNotSeenWouldBeNoticed) {
  EXPECT_THAT(expectDivergence({.tamperAt = 2}), HasSubstr("visible is 0 instead of 1"));
}

}  // namespace
}  // namespace leafund::random
