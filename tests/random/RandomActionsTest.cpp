#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>

#include "tests/random/Comparison.h"
#include "tests/random/Runner.h"
#include "tests/random/Shrinker.h"

namespace leafund::random {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

std::string lines(const ShrunkFailure& failure) {
  std::string all = failure.told;
  for (const auto& action : failure.script) all = readable(action) + '\n' + all;
  return all;
}

class RandomActionsTest : public testing::Test {
 protected:
  RandomActionsTest() { warmUp(); }

  Totals expectAgreement(const Order& order) {
    Totals totals;
    const auto diverged = runSequences(order, wording, totals);
    EXPECT_FALSE(diverged) << "seed " << diverged->seed << '\n'
                           << lines(shrinkFailure(*diverged, wording));
    return totals;
  }
  // The shortest script that shows the mistake; fails when no sequence shows it.
  ShrunkFailure expectDivergence(Order order) {
    order.actions = 200'000;
    order.fatalPercent = 50;
    order.most = 400;
    Totals totals;
    const auto diverged = runSequences(order, wording, totals);
    EXPECT_TRUE(diverged) << "not noticed in " << totals.actions << " actions";
    return diverged ? shrinkFailure(*diverged, wording) : ShrunkFailure{};
  }
  ShrunkFailure expectDivergence(Twist twist) { return expectDivergence(Order{.twist = twist}); }

  FreeWording wording = wordingOfTheApplication();
};

TEST_F(RandomActionsTest, LongSequencesAgreeAfterEveryAction) {
  const auto totals = expectAgreement({.actions = 8'000, .firstSeed = 1, .fatalPercent = 0});
  EXPECT_EQ(totals.stops, 0U);
}

TEST_F(RandomActionsTest, ShortSequencesAgreeAfterEveryAction) {
  expectAgreement({.actions = 6'000, .firstSeed = 50'000, .fatalPercent = 0, .most = 100});
}

TEST_F(RandomActionsTest, SequencesThatMustStopAgreeOnWhereAndWhy) {
  const auto totals =
      expectAgreement({.actions = 6'000, .firstSeed = 90'000, .fatalPercent = 100, .most = 200});
  EXPECT_EQ(totals.escaped, 0U);
  EXPECT_EQ(totals.stops, totals.sequences);
}

TEST_F(RandomActionsTest, EveryScreenAndEveryKindOfActionIsMet) {
  const auto totals = expectAgreement({.actions = 20'000, .firstSeed = 7'000, .most = 600});
  EXPECT_THAT(totals.scenes, testing::Each(testing::Gt(0U)));
  EXPECT_THAT(totals.kinds, testing::Each(testing::Gt(0U)));
}

TEST_F(RandomActionsTest, ASeedGivesTheSameActionsAgain) {
  const auto plan = Plan::ofSeed(5, 0, 300);
  const auto script = scriptOf(plan, wording, 100);
  EXPECT_THAT(script, SizeIs(100));
  EXPECT_EQ(scriptOf(plan, wording, 100), script);
  EXPECT_NE(scriptOf(Plan::ofSeed(6, 0, 300), wording, 100), script);
}

TEST_F(RandomActionsTest, AViewThatWasTamperedWithIsNoticed) {
  const auto failure = expectDivergence(Order{.tamperAt = 3});
  EXPECT_THAT(failure.told, HasSubstr("expected: label"));
  EXPECT_THAT(failure.script, SizeIs(testing::Le(8)));
}

TEST_F(RandomActionsTest, APledgeBeyondTheGoalWouldBeNoticed) {
  EXPECT_THAT(expectDivergence(Twist::PledgeWithoutCap).told, HasSubstr("another raised"));
}

TEST_F(RandomActionsTest, ARefusedNanWouldBeNoticed) {
  EXPECT_THAT(expectDivergence(Twist::NanIsRefused).script, SizeIs(testing::Le(8)));
}

TEST_F(RandomActionsTest, AMessageNotTakenForATextWouldBeNoticed) {
  EXPECT_THAT(expectDivergence(Twist::MessageIsNotTyped).script, SizeIs(testing::Le(6)));
}

TEST_F(RandomActionsTest, APictureBoundToTheRowWouldBeNoticed) {
  EXPECT_THAT(expectDivergence(Twist::PictureGoesToTheRow).told, HasSubstr("picture="));
}

TEST_F(RandomActionsTest, ANameThatComesTooLateWouldBeNoticed) {
  EXPECT_THAT(expectDivergence(Twist::OwnNameFollowsSignUp).told, HasSubstr("creator"));
}

TEST_F(RandomActionsTest, AnotherReuseOfRowsWouldBeNoticed) {
  EXPECT_THAT(expectDivergence(Twist::RowsFromTheBackOfThePool).told, HasSubstr("cell"));
}

TEST_F(RandomActionsTest, ACountThatIsNotPrintedWouldBeNoticed) {
  EXPECT_THAT(expectDivergence(Twist::CountIsNotPrinted).told, HasSubstr("expected printed"));
}

TEST_F(RandomActionsTest, AMissingWayBackWouldBeNoticed) {
  EXPECT_THAT(expectDivergence(Twist::NoBackFromTheForm).told, HasSubstr("NewCampaignVC"));
}

TEST_F(RandomActionsTest, AnotherReasonToStopWouldBeNoticed) {
  const auto failure = expectDivergence(Twist::AnotherReasonToStop);
  EXPECT_THAT(failure.told, HasSubstr("expected stop: Leafund stopped: MyProfileVC: no address"));
  EXPECT_THAT(failure.told, HasSubstr("MyProfileVC: not a URL"));
}

TEST_F(RandomActionsTest, AStopThatNobodyExpectsIsToldWithItsLine) {
  Plan plan;
  plan.script = Script{{.kind = ActionKind::Type, .name = "userEmail", .text = "a"},
                       {.kind = ActionKind::Type, .name = "password", .text = "b"},
                       {.kind = ActionKind::Tap, .name = "signInButton"},
                       {.kind = ActionKind::Answer, .ending = Ending::Junk}};
  const auto stopped = runSequence(plan, wording);
  EXPECT_EQ(stopped.verdict, Verdict::StoppedAsExpected) << toldBy(stopped);
  EXPECT_EQ(stopped.actions, 4U);
  // The same end, had the reference gone on.
  Report report = stopped;
  report.stopExpected = false;
  judge(report, SIGABRT, "Leafund stopped: there: why\n");
  EXPECT_EQ(report.verdict, Verdict::Diverged);
  EXPECT_THAT(toldBy(report), HasSubstr("Leafund stopped: there: why"));
}

}  // namespace
}  // namespace leafund::random
