#include <QElapsedTimer>

#include "model/Catalogue.h"
#include "tests/window/PressFixture.h"

namespace leafund {
namespace {

class PressTest : public PressFixture {};

TEST_F(PressTest, ADoubleClickOnFundAsksAndBooksNothing) {
  int underTheSecond = 0;  // how often Yes came to lie there
  for (const QSize size : {QSize(390, 710), QSize(480, 740), QSize(550, 740)}) {
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

TEST_F(PressTest, ADoubleClickOnYesBooksOnceAndThanks) {
  openCampaign();
  type("dollarAmountField", "1");
  click("FundButton");
  app.settle();
  const auto where = middleOf("yesButton");
  clickTimes(where, 2);
  EXPECT_EQ(screen(), "ThankYouVC");
  const auto& home = app.require("homeButton");
  EXPECT_TRUE(home.contains(home.mapFromScene(where))) << "it proves nothing";
  EXPECT_EQ(campaignsIFunded().size(), 4U);
  EXPECT_EQ(otherCampaigns().size(), 6U);
}

TEST_F(PressTest, ASlowSecondClickInTheSamePlaceIsItsOwn) {
  ASSERT_NO_FATAL_FAILURE(putYesWhereFundWas());
  openCampaign();
  type("dollarAmountField", "1");
  app.settle();
  const auto fund = middleOf("FundButton");
  clickTimes(fund, 1, 500);
  app.settle();
  const auto& yes = app.require("yesButton");
  ASSERT_TRUE(yes.contains(yes.mapFromScene(fund)));
  clickTimes(fund, 1);
  EXPECT_EQ(screen(), "ThankYouVC");
}

TEST_F(PressTest, OneSlowYesAfterOneFundBooksAtEverySize) {
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

TEST_F(PressTest, ADoubleClickOnHomeOrSignInOpensNoRow) {
  type("userEmail", "wren@example.org");
  type("password", "secret");
  const auto expectOver = [this](QPoint where, const std::string& name) {
    const auto& item = app.require(name);
    EXPECT_TRUE(item.contains(item.mapFromScene(where))) << name << " lies elsewhere";
  };
  const auto signInButton = middleOf("signInButton");
  clickTimes(signInButton, 2, 250);
  expectOver(signInButton, "abc-3");
  EXPECT_EQ(screen(), "OtherCampaignsTableViewController");
  click("abc-0");
  type("dollarAmountField", "1");
  click("FundButton");
  click("yesButton");
  app.settle();
  const auto home = middleOf("homeButton");
  clickTimes(home, 3);
  expectOver(home, "abc-3");
  EXPECT_EQ(screen(), "OtherCampaignsTableViewController");
}

TEST_F(PressTest, ASecondClickThatComesLaterOrElsewhereCountsAtOnce) {
  openCampaign();
  type("dollarAmountField", "1");
  clickTimes("FundButton", 1, 500);
  clickTimes(middleOf("noButton"), 1);
  EXPECT_EQ(screen(), "OneCampaignViewController");
  clickTimes("FundButton", 1, 50);
  clickTimes(middleOf("yesButton") + QPoint(30, 0), 1);  // in the middle of the slide
  EXPECT_EQ(screen(), "ThankYouVC");
}

TEST_F(PressTest, ASecondClickWhereTheFirstChangedNoScreenCounts) {
  clickTimes("signInButton", 1);
  EXPECT_EQ(shownWords("password"), "Error: Please Enter a Password");
  clickTimes("signInButton", 1);  // with the messages for texts, as the form is meant
  EXPECT_EQ(screen(), "OtherCampaignsTableViewController");
  clickTimes("mineTab", 1);
  clickTimes("fundedTab", 2);
  EXPECT_EQ(screen(), "FundCampaignVC");
}

TEST_F(PressTest, ASecondTouchWhereTheFirstChangedNoScreenCounts) {
  const auto button = middleOf("signInButton");
  touch(button);
  EXPECT_EQ(shownWords("password"), "Error: Please Enter a Password");
  touch(button);
  EXPECT_EQ(screen(), "OtherCampaignsTableViewController");
}

class DoubleTapTest : public PressFixture {
 protected:
  // By a finger whose second touch falls on "Yes", a little beside the first.
  void expectNoBooking(const std::function<void(QPoint)>& tap) {
    openCampaign();
    type("dollarAmountField", "1");
    app.window().resize(550, 740);  // where Yes comes to lie below the finger
    ASSERT_TRUE(app.waitUntil([&] { return app.page()->width() == 550; }));
    for (int i = 0; i < 10; ++i) {  // on a busy machine the second touch may come too late
      app.settle();
      const auto fund = middleOf("FundButton");
      QElapsedTimer time;
      time.start();
      tap(fund);
      app.settle();
      const auto& yes = app.require("yesButton");
      ASSERT_TRUE(yes.contains(yes.mapFromScene(fund)));
      const bool soon = time.elapsed() < 330;
      if (soon) tap(fund + QPoint(12, -6));
      ASSERT_EQ(screen(), "ConfirmPageVC");
      if (soon) return;
      click("noButton");
    }
    FAIL() << "no second touch came in time";
  }
};

TEST_F(DoubleTapTest, ItBooksNothing) {
  expectNoBooking([this](QPoint where) { touch(where); });
}

TEST_F(DoubleTapTest, BesideAFingerThatRestsItBooksNothing) {
  const QPoint ground{4, 300};
  put(ground);
  expectNoBooking([&](QPoint where) { tapBeside(ground, where); });
}

TEST_F(DoubleTapTest, BesideAFingerThatRestsItIsTwoTapsWhereNoScreenChanged) {
  const auto button = middleOf("signInButton");
  const QPoint ground{4, 300};
  put(ground);
  tapBeside(ground, button);
  EXPECT_EQ(shownWords("password"), "Error: Please Enter a Password");
  tapBeside(ground, button);
  EXPECT_EQ(screen(), "OtherCampaignsTableViewController");
}

// Of a button Qt Quick makes no click once another button was pressed; what is entered hears of it.
TEST_F(PressTest, AnotherButtonMakesNoPressOfTheRestOfADoubleClick) {
  openCampaign();
  const auto amount = middleOf("dollarAmountField");
  app.press(Qt::Key_Escape);
  app.settle();
  clickTimes(amount, 1);
  app.settle();
  sendPointer(amount, Qt::LeftButton, QEvent::MouseButtonPress);
  sendButtons(amount, Qt::LeftButton | Qt::RightButton, QEvent::MouseButtonPress, Qt::RightButton);
  sendButtons(amount, Qt::LeftButton, QEvent::MouseButtonRelease, Qt::RightButton);
  sendPointer(amount, Qt::NoButton, QEvent::MouseButtonRelease, Qt::LeftButton);
  EXPECT_EQ(screen(), "OneCampaignViewController");
  EXPECT_EQ(app.application->firstResponder(), nullptr);
}

TEST_F(PressTest, TheSecondPressOfADoubleOneEntersNoInput) {
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

TEST_F(PressTest, ASecondTouchThatIsDrawnAlongScrolls) {
  signIn();
  const auto where = middleOf("abc-3");
  touch(where);
  app.press(Qt::Key_Escape);
  touch(where, where - QPoint(0, 200));
  EXPECT_EQ(screen(), "OtherCampaignsTableViewController");
  EXPECT_GT(app.require("table").property("contentY").toDouble(), 100);
}

}  // namespace
}  // namespace leafund
