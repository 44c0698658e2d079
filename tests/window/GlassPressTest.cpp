#include <QElapsedTimer>

#include "model/Catalogue.h"
#include "tests/window/FingerFixture.h"

namespace leafund {
namespace {

// Clicks, touches and keys that come faster than a user can look.
class GlassPressTest : public FingerTest {
 protected:
  // Presses and lifts the pointer that many times at one place, that many milliseconds apart by the
  // events, and each when the slide that the one before began has ended.
  void clickTimes(QPoint where, int times, int apart = 100,
                  Qt::MouseButton button = Qt::LeftButton) {
    for (int i = 0; i < times; ++i) {
      if (i > 0) app.settle();
      sendPointer(where, button, QEvent::MouseButtonPress);
      sendPointer(where, Qt::NoButton, QEvent::MouseButtonRelease, button);
      pass(apart);
    }
  }
  void clickTimes(const std::string& name, int times, int apart = 100) {
    app.settle();
    clickTimes(middleOf(name), times, apart);
  }
  void key(Qt::Key key, QEvent::Type type, bool repeat = false, Qt::KeyboardModifiers with = {}) {
    QKeyEvent event(type, key, with, {}, repeat);
    event.setTimestamp(static_cast<quint64>(now_));
    QCoreApplication::sendEvent(&app.window(), &event);
  }
  void pass(int milliseconds) { now_ += milliseconds; }

  void openCampaign() {
    signIn();
    click("abc-0");
  }
  std::string screen() {
    app.settle();
    return app.shown()->className();
  }

  void sendPointer(QPoint where, Qt::MouseButton held, QEvent::Type type,
                   Qt::MouseButton lifted = Qt::NoButton) {
    qt_handleMouseEvent(&app.window(), where, app.window().mapToGlobal(where), held,
                        lifted == Qt::NoButton ? held : lifted, type, {}, now_);
    QCoreApplication::processEvents();
  }

 private:
  int now_ = 1'000'000;  // milliseconds
};

TEST_F(GlassPressTest, ADoubleClickOnFundAsksAndBooksNothing) {
  int underTheSecond = 0;  // how often Yes came to lie there
  for (const QSize size : {QSize(390, 844), QSize(600, 800), QSize(1280, 800)}) {
    SCOPED_TRACE(size.width());
    app.window().resize(size);
    ASSERT_TRUE(app.waitUntil([&] { return app.page()->width() == size.width(); }));
    if (app.item("userEmail") != nullptr) signIn();
    for (const int apart : {60, 100, 250, 350}) {
      click("abc-0");
      type("dollarAmountField", "1");
      app.settle();
      const auto fund = middleOf("FundButton");
      clickTimes(fund, 2, apart);
      ASSERT_EQ(screen(), "ConfirmPageVC") << apart;
      const auto& yes = app.require("yesButton");
      underTheSecond += yes.contains(yes.mapFromScene(fund)) ? 1 : 0;
      click("noButton");
      app.press(Qt::Key_Escape);
      app.settle();
    }
  }
  EXPECT_EQ(campaignsIFunded().size(), 3U);
  EXPECT_GE(underTheSecond, 8);
}

TEST_F(GlassPressTest, OneSlowYesAfterOneFundBooksAtEverySize) {
  std::size_t booked = campaignsIFunded().size();
  for (const QSize size : {QSize(390, 844), QSize(844, 390), QSize(1280, 800)}) {
    app.window().resize(size);
    ASSERT_TRUE(app.waitUntil([&] { return app.page()->width() == size.width(); }));
    if (app.item("userEmail") != nullptr) signIn();
    click("abc-0");
    type("dollarAmountField", "1");
    click("FundButton");
    click("yesButton");
    EXPECT_EQ(campaignsIFunded().size(), ++booked);
    click("homeButton");
  }
}

TEST_F(GlassPressTest, ADoubleClickOnHomeOrSignInOpensNoRow) {
  type("userEmail", "wren@example.org");
  type("password", "secret");
  clickTimes("signInButton", 2, 250);
  EXPECT_EQ(screen(), "OtherCampaignsTableViewController");
  click("abc-0");
  type("dollarAmountField", "1");
  click("FundButton");
  click("yesButton");
  clickTimes("homeButton", 3);
  EXPECT_EQ(screen(), "OtherCampaignsTableViewController");
}

TEST_F(GlassPressTest, ASecondClickThatComesLaterOrElsewhereCountsAtOnce) {
  openCampaign();
  type("dollarAmountField", "1");
  clickTimes("FundButton", 1, 500);
  clickTimes(middleOf("noButton"), 1);
  EXPECT_EQ(screen(), "OneCampaignViewController");
  clickTimes("FundButton", 1, 50);
  clickTimes(middleOf("yesButton") + QPoint(30, 0), 1);  // in the middle of the slide
  EXPECT_EQ(screen(), "ThankYouVC");
}

TEST_F(GlassPressTest, ASecondClickWhereTheFirstChangedNoScreenCounts) {
  clickTimes("signInButton", 1);
  EXPECT_EQ(glassText("password"), "Error: Please Enter a Password");
  clickTimes("signInButton", 1);  // with the messages for texts, as the form is meant
  EXPECT_EQ(screen(), "OtherCampaignsTableViewController");
  clickTimes("mineTab", 1);
  clickTimes("fundedTab", 2);
  EXPECT_EQ(screen(), "FundCampaignVC");
}

TEST_F(GlassPressTest, ASecondTouchWhereTheFirstChangedNoScreenCounts) {
  const auto button = middleOf("signInButton");
  touch(button);
  EXPECT_EQ(glassText("password"), "Error: Please Enter a Password");
  touch(button);
  EXPECT_EQ(screen(), "OtherCampaignsTableViewController");
}

TEST_F(GlassPressTest, AClickBehindAKeyThatChangedTheScreenIsItsOwn) {
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

TEST_F(GlassPressTest, ADoubleTapOfAFingerBooksNothing) {
  openCampaign();
  type("dollarAmountField", "1");
  app.window().resize(1280, 800);  // where Yes comes to lie below the finger
  ASSERT_TRUE(app.waitUntil([&] { return app.page()->width() == 1280; }));
  for (int i = 0; i < 10; ++i) {  // on a busy machine the second touch may come too late
    app.settle();
    const auto fund = middleOf("FundButton");
    QElapsedTimer time;
    time.start();
    touch(fund);
    app.settle();
    const auto& yes = app.require("yesButton");
    ASSERT_TRUE(yes.contains(yes.mapFromScene(fund)));
    const bool soon = time.elapsed() < 330;
    if (soon) touch(fund + QPoint(12, -6));
    ASSERT_EQ(screen(), "ConfirmPageVC");
    if (soon) return;
    click("noButton");
  }
  FAIL() << "no second touch came in time";
}

TEST_F(GlassPressTest, TheSecondPressOfADoubleOneEntersNoInput) {
  openCampaign();
  const auto amount = middleOf("dollarAmountField");
  app.press(Qt::Key_Escape);
  app.settle();
  clickTimes(amount, 2);
  EXPECT_EQ(screen(), "OneCampaignViewController");
  EXPECT_EQ(app.application->firstResponder(), nullptr);
  for (int i = 0; i < 10; ++i) {  // on a busy machine the second touch may come too late
    app.press(Qt::Key_Escape);
    app.settle();
    QElapsedTimer time;
    time.start();
    touch(amount);
    app.settle();
    const bool soon = time.elapsed() < 330;
    if (soon) touch(amount);
    ASSERT_EQ(screen(), "OneCampaignViewController");
    EXPECT_EQ(app.application->firstResponder(), nullptr);
    if (soon) return;
  }
  FAIL() << "no second touch came in time";
}

TEST_F(GlassPressTest, AKeyWhileTheButtonIsHeldDoesNotMakeTheSecondClickItsOwn) {
  openCampaign();
  type("dollarAmountField", "1");
  app.window().resize(1280, 800);
  ASSERT_TRUE(app.waitUntil([&] { return app.page()->width() == 1280; }));
  app.settle();
  const auto fund = middleOf("FundButton");
  sendPointer(fund, Qt::LeftButton, QEvent::MouseButtonPress);
  key(Qt::Key_Shift, QEvent::KeyPress);
  sendPointer(fund, Qt::NoButton, QEvent::MouseButtonRelease, Qt::LeftButton);
  pass(100);
  app.settle();
  clickTimes(fund, 1);
  EXPECT_EQ(screen(), "ConfirmPageVC");
}

TEST_F(GlassPressTest, ASecondTouchThatIsDrawnAlongScrolls) {
  signIn();
  const auto where = middleOf("abc-3");
  touch(where);
  app.press(Qt::Key_Escape);
  touch(where, where - QPoint(0, 200));
  EXPECT_EQ(screen(), "OtherCampaignsTableViewController");
  EXPECT_GT(app.require("table").property("contentY").toDouble(), 100);
}

TEST_F(GlassPressTest, AKeyThatIsHeldLeavesOneScreenHoweverItsRepeatsAreTold) {
  signIn();
  click("fundedTab");
  click("Funded-0");
  click("campaignUpdates");
  key(Qt::Key_Escape, QEvent::KeyPress);
  pass(660);
  for (int i = 0; i < 20; ++i) {  // as a busy window system tells them: let go and pressed at once
    key(Qt::Key_Escape, QEvent::KeyRelease, i % 2 == 0);
    key(Qt::Key_Escape, QEvent::KeyPress, i % 2 == 0);
    pass(40);
  }
  EXPECT_EQ(screen(), "OneCampaignViewController");
  key(Qt::Key_Escape, QEvent::KeyRelease);
  pass(500);
  key(Qt::Key_Escape, QEvent::KeyPress);
  EXPECT_EQ(screen(), "FundCampaignVC");
}

TEST_F(GlassPressTest, ReturnPressedTwicePressesOneButton) {
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

TEST_F(GlassPressTest, AltLeftAndThePointersBackButtonLeadBack) {
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

TEST_F(GlassPressTest, ControlQClosesTheWindow) {
  click("userEmail");
  key(Qt::Key_Q, QEvent::KeyPress, false, Qt::ControlModifier);
  EXPECT_FALSE(app.window().isVisible());
}

}  // namespace
}  // namespace leafund
