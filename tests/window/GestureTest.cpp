#include "model/Catalogue.h"
#include "tests/window/FingerFixture.h"

namespace leafund {
namespace {

class GestureTest : public FingerTest {
 protected:
  void drag(QPoint from, QPoint to) {
    QTest::mousePress(&app.window(), Qt::LeftButton, {}, from);
    for (int i = 1; i <= kSteps; ++i) {
      QTest::mouseMove(&app.window(), from + (to - from) * i / kSteps);
    }
    QTest::mouseRelease(&app.window(), Qt::LeftButton, {}, to);
    QCoreApplication::processEvents();
  }
};

TEST_F(GestureTest, AFingerDrawnFromTheLeftEdgeLeavesOneScreen) {
  openUpdate();
  touch({6, 500}, {220, 510});
  EXPECT_EQ(screen(), "OneCampaignViewController");
  touch({6, 500}, {220, 480});
  EXPECT_EQ(screen(), "FundCampaignVC");
}

TEST_F(GestureTest, APointerDrawnFromTheLeftEdgeLeavesOneScreen) {
  openUpdate();
  drag({3, 300}, {200, 300});
  EXPECT_EQ(screen(), "OneCampaignViewController");
}

TEST_F(GestureTest, AShortWayAWayBackAndAWayFromTheMiddleLeadNowhere) {
  openUpdate();
  touch({6, 500}, {60, 500});
  EXPECT_EQ(screen(), "UpdatePageVC");
  touch({120, 500}, {380, 500});
  EXPECT_EQ(screen(), "UpdatePageVC");
  touch({23, 500}, {0, 500});
  EXPECT_EQ(screen(), "UpdatePageVC");
}

TEST_F(GestureTest, AHiddenBackButtonRefusesTheGestureToo) {
  touch({6, 500}, {300, 500});
  EXPECT_EQ(screen(), "LandingPageVC");
  signIn();
  touch({6, 28}, {300, 28});
  EXPECT_EQ(app.navigation().topViewController()->className(), "TabBarVC");
  click("abc-0");
  type("dollarAmountField", "1");
  click("FundButton");
  drag({6, 500}, {300, 500});
  EXPECT_EQ(screen(), "ConfirmPageVC");
}

TEST_F(GestureTest, WhatLiesAtTheEdgeIsTappedAsElsewhere) {
  openUpdate();
  touch({10, 28});  // on the bar's button, and within the edge
  EXPECT_EQ(screen(), "OneCampaignViewController");
  touch({10, 28}, {240, 28});  // the gesture takes the finger from the button
  EXPECT_EQ(screen(), "FundCampaignVC");
}

TEST_F(GestureTest, AFingerScrollsAtTheEdgeAsElsewhere) {
  signIn();
  click("mineTab");
  click("newButton");
  app.window().resize(390, 568);
  ASSERT_TRUE(app.waitUntil([&] { return app.page()->height() == 568; }));
  app.settle();
  auto* flickable = app.require("nameOfCreator").parentItem();
  while (!flickable->inherits("QQuickFlickable")) flickable = flickable->parentItem();
  touch({10, 500}, {20, 200});
  EXPECT_EQ(screen(), "NewCampaignVC");
  EXPECT_GT(flickable->property("contentY").toDouble(), 50);
}

// A list caught in a fling could move no further, had no hold of the finger, and was not told that
// it was lifted.
TEST_F(GestureTest, AListCaughtAtItsEndLetsGoOfAFingerThatIsLiftedElsewhere) {
  signIn();
  const auto& list = app.require("table");
  QMetaObject::invokeMethod(&app.require("table"), "flick", Q_ARG(double, 0), Q_ARG(double, -600));
  EXPECT_TRUE(list.property("moving").toBool());
  touch({200, 400}, {200, 820});
  EXPECT_FALSE(list.property("dragging").toBool());
  EXPECT_TRUE(app.waitUntil([&] { return !list.property("moving").toBool(); }));
}

TEST_F(GestureTest, TheGestureEndsTheEditingAsEveryWayBackDoes) {
  click("signUpButton");
  click("nameField");
  ASSERT_NE(app.application->firstResponder(), nullptr);
  touch({6, 600}, {220, 600});
  EXPECT_EQ(screen(), "LandingPageVC");
  EXPECT_EQ(app.application->firstResponder(), nullptr);
}

TEST_F(GestureTest, AnOutgoingScreenTakesNoFinger) {
  signIn();
  click("abc-0");
  type("dollarAmountField", "1");
  const auto fund = middleOf("FundButton");
  app.press(Qt::Key_Escape);
  touch(
      fund);  // where the outgoing screen still shows its button, over a row of the one that comes
  EXPECT_EQ(screen(), "OneCampaignViewController");
  EXPECT_EQ(shownWords("campaignTitle").toStdString(), otherCampaigns().at(3)->title());
}

TEST_F(GestureTest, AnIncomingScreenTakesAFingerAtOnce) {
  signIn();
  for (int i = 0; i < 10; ++i) {  // on a busy machine a slide may be over before it is looked at
    click("abc-0");
    app.press(Qt::Key_Escape);
    const auto tab = middleOf("newsTab");
    touch(tab);
    const bool sliding = app.page()->x() != 0;
    if (!sliding) click("browseTab");
    if (!sliding) continue;
    EXPECT_EQ(app.shown()->className(), "NewsFeedVC");
    return;
  }
  FAIL() << "no slide was met";
}

TEST_F(GestureTest, TwoFingersOnYesBookOnce) {
  signIn();
  click("abc-0");
  type("dollarAmountField", "1");
  click("FundButton");
  const auto yes = middleOf("yesButton");
  const auto beside = yes + QPoint(40, 0);
  const std::unique_ptr<QPointingDevice> hand(QTest::createTouchDevice());
  const auto hands = [&] { return QTest::touchEvent(&app.window(), hand.get()); };
  hands().press(0, yes).press(1, beside);
  hands().release(0, yes).move(1, beside);
  hands().release(1, beside);
  touch(yes);  // while the screen slides out
  EXPECT_EQ(screen(), "ThankYouVC");
  EXPECT_EQ(campaignsIFunded().size(), 4U);
  EXPECT_EQ(otherCampaigns().size(), 6U);
}

}  // namespace
}  // namespace leafund
