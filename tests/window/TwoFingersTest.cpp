#include <QStyleHints>

#include "tests/window/FingerFixture.h"

namespace leafund {
namespace {

// A hand that rests on the window keeps no other finger from what it presses.
class TwoFingersTest : public FingerTest {
 protected:
  void restOn(QPoint where) {
    resting_ = where;
    put(where);
  }
  void tap(QPoint where) {
    tapBeside(resting_, where);
    app.settle();
  }

  QPoint resting_;
};

TEST_F(TwoFingersTest, AFingerThatRestsBesideTheControlsBlocksNoButton) {
  const QPoint ground{195, 830};
  restOn(ground);
  tap(middleOf("signUpButton"));
  EXPECT_EQ(screen(), "SignUpVC");
  lift(ground);
  EXPECT_EQ(screen(), "SignUpVC");
}

TEST_F(TwoFingersTest, AFingerThatRestsOnAScreenThatScrollsBlocksNoButton) {
  app.window().resize(390, 420);
  ASSERT_TRUE(app.waitUntil([&] { return app.page()->height() == 420; }));
  click("signUpButton");
  const QPoint ground{4, 300};
  restOn(ground);
  tap(middleOf("backButton"));
  EXPECT_EQ(screen(), "LandingPageVC");
}

TEST_F(TwoFingersTest, AFingerThatRestsInAListBlocksNoTab) {
  signIn();
  click("fundedTab");
  restOn({195, 700});  // below the last row
  tap(middleOf("mineTab"));
  EXPECT_EQ(screen(), "MyProfileVC");
}

// For longer than a tap takes it does nothing there either.
TEST_F(TwoFingersTest, AFingerThatHasRestedOnARowBlocksNoTab) {
  signIn();
  const auto row = middleOf("abc-0");
  restOn(row);
  QTest::qWait(QGuiApplication::styleHints()->mousePressAndHoldInterval() + 50);
  tap(middleOf("mineTab"));
  EXPECT_EQ(screen(), "MyProfileVC");
  lift(row);
  EXPECT_EQ(screen(), "MyProfileVC");
}

TEST_F(TwoFingersTest, AFingerThatRestsOnAPageKeepsNobodyFromLeavingAnInput) {
  app.window().resize(568, 320);
  signIn();
  ASSERT_TRUE(app.waitUntil([&] { return app.page()->height() == 320; }));
  click("abc-1");
  click("dollarAmountField");
  ASSERT_TRUE(app.application->firstResponder());
  const QPoint margin{566, 160};
  restOn(margin);
  tap({547, 261});
  EXPECT_FALSE(app.application->firstResponder());
  tap({547, 261});
  lift(margin);
}

TEST_F(TwoFingersTest, AFingerThatHasJustPressedKeepsItsTap) {
  signIn();
  const auto row = middleOf("abc-0");
  const auto tab = middleOf("mineTab");
  restOn(row);
  QTest::touchEvent(&app.window(), finger_.get()).move(0, row).press(1, tab);
  QTest::touchEvent(&app.window(), finger_.get()).release(0, row).move(1, tab);
  QTest::touchEvent(&app.window(), finger_.get()).release(1, tab);
  app.settle();
  EXPECT_EQ(screen(), "OneCampaignViewController");
}

}  // namespace
}  // namespace leafund
