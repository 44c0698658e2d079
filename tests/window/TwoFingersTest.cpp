#include "tests/window/FingerFixture.h"

namespace leafund {
namespace {

// A hand that rests on the window keeps no other finger from what it presses.
class TwoFingersTest : public FingerTest {
 protected:
  void restOn(QPoint where) { QTest::touchEvent(&app.window(), finger_.get()).press(0, where); }
  void liftRest(QPoint where) {
    QTest::touchEvent(&app.window(), finger_.get()).release(0, where);
    app.settle();
  }
  // By another finger, while the first one rests.
  void tap(QPoint where) {
    QTest::touchEvent(&app.window(), finger_.get()).stationary(0).press(1, where);
    QTest::touchEvent(&app.window(), finger_.get()).stationary(0).release(1, where);
    app.settle();
  }
  std::string screen() { return app.shown()->className(); }
};

TEST_F(TwoFingersTest, AFingerThatRestsBesideTheControlsBlocksNoButton) {
  const QPoint ground{195, 830};
  restOn(ground);
  tap(middleOf("signUpButton"));
  EXPECT_EQ(screen(), "SignUpVC");
  liftRest(ground);
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

}  // namespace
}  // namespace leafund
