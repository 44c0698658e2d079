#include "tests/window/PressFixture.h"

namespace leafund {
namespace {

class KeyPressTest : public PressFixture {};

TEST_F(KeyPressTest, AClickBehindAKeyThatChangedTheScreenIsItsOwn) {
  signIn();
  clickTimes("browseTab", 1);
  click("abc-0");
  const auto where = middleOf("dollarAmountField");
  clickTimes(where, 1, 50);
  key(Qt::Key_Escape, QEvent::KeyPress);
  app.settle();
  clickTimes(where, 1);
  EXPECT_EQ(screen(), "OneCampaignViewController");
}

TEST_F(KeyPressTest, AKeyWhileTheButtonIsHeldDoesNotMakeTheSecondClickItsOwn) {
  openCampaign();
  type("dollarAmountField", "1");
  ASSERT_NO_FATAL_FAILURE(putYesWhereFundWas());
  const auto fund = middleOf("FundButton");
  sendPointer(fund, Qt::LeftButton, QEvent::MouseButtonPress);
  key(Qt::Key_Shift, QEvent::KeyPress);
  sendPointer(fund, Qt::NoButton, QEvent::MouseButtonRelease, Qt::LeftButton);
  pass(100);
  app.settle();
  const auto& yes = app.require("yesButton");
  ASSERT_TRUE(yes.contains(yes.mapFromScene(fund)));
  clickTimes(fund, 1);
  EXPECT_EQ(screen(), "ConfirmPageVC");
}

TEST_F(KeyPressTest, AKeyThatIsHeldLeavesOneScreenHoweverItsRepeatsAreTold) {
  signIn();
  click("fundedTab");
  click("Funded-0");
  click("campaignUpdates");
  key(Qt::Key_Escape, QEvent::KeyPress);
  pass(660);
  for (int i = 0; i < 20; ++i) {  // as a busy system tells the first: let go and pressed
    key(Qt::Key_Escape, QEvent::KeyRelease, i % 2 != 0);
    key(Qt::Key_Escape, QEvent::KeyPress, i % 2 != 0);
    pass(40);
  }
  EXPECT_EQ(screen(), "OneCampaignViewController");
  key(Qt::Key_Escape, QEvent::KeyRelease);
  pass(500);
  key(Qt::Key_Escape, QEvent::KeyPress);
  EXPECT_EQ(screen(), "FundCampaignVC");
}

TEST_F(KeyPressTest, ReturnPressedTwicePressesOneButton) {
  openCampaign();
  type("dollarAmountField", "1");
  app.require("FundButton").forceActiveFocus(Qt::TabFocusReason);
  for (int i = 0; i < 2; ++i) {
    key(Qt::Key_Return, QEvent::KeyPress);
    key(Qt::Key_Return, QEvent::KeyRelease);
    app.require("yesButton").forceActiveFocus(Qt::TabFocusReason);
    pass(150);
  }
  EXPECT_EQ(screen(), "ConfirmPageVC");
  key(Qt::Key_Return, QEvent::KeyPress);
  pass(500);
  key(Qt::Key_Return, QEvent::KeyRelease);
  pass(50);
  key(Qt::Key_Return, QEvent::KeyPress);
  EXPECT_EQ(screen(), "ThankYouVC");
}

TEST_F(KeyPressTest, AltLeftAndThePointersBackButtonLeadBack) {
  click("signUpButton");
  key(Qt::Key_Left, QEvent::KeyPress, false, Qt::AltModifier);
  EXPECT_EQ(screen(), "LandingPageVC");
  click("signUpButton");
  click("nameField");
  pass(500);
  key(Qt::Key_Left, QEvent::KeyPress, false, Qt::AltModifier);
  EXPECT_EQ(screen(), "LandingPageVC");
  signIn();
  click("fundedTab");
  click("Funded-0");
  click("campaignUpdates");
  clickTimes({200, 400}, 2, 100, Qt::BackButton);  // a double click leaves one screen
  EXPECT_EQ(screen(), "OneCampaignViewController");
  pass(500);
  clickTimes({200, 400}, 1, 500, Qt::BackButton);
  EXPECT_EQ(screen(), "FundCampaignVC");
  clickTimes({200, 400}, 1, 500, Qt::BackButton);
  EXPECT_EQ(app.navigation().topViewController()->className(), "TabBarVC");
}

TEST_F(KeyPressTest, ControlQClosesTheWindow) {
  click("userEmail");
  key(Qt::Key_Q, QEvent::KeyPress, false, Qt::ControlModifier);
  EXPECT_FALSE(app.window().isVisible());
}

}  // namespace
}  // namespace leafund
