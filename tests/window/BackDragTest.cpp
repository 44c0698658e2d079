#include <cmath>

#include "tests/support/ViewNamed.h"
#include "tests/window/FingerFixture.h"

namespace leafund {
namespace {

// A screen follows the finger that draws it from its left edge.
class BackDragTest : public FingerTest {
 protected:
  static constexpr int kStep = 12;  // points

  void openCampaign() {
    signIn();
    click("abc-0");
  }
  QQuickItem* pageOf(const QString& className) {
    return app.window().contentItem()->findChild<QQuickItem*>(className,
                                                              Qt::FindDirectChildrenOnly);
  }
  QQuickItem* campaign() { return pageOf("OneCampaignViewController"); }
  QQuickItem* home() { return pageOf("TabBarVC"); }

  void draw(int from, int to) {
    for (int x = from; from < to ? x < to : x > to; x += from < to ? kStep : -kStep) {
      drawTo({x, kHeight});
    }
    drawTo({to, kHeight});
  }
  void drawFromTheEdge(int to) {
    put({kEdge, kHeight});
    draw(kEdge, to);
  }
  void rest() { QTest::qWait(150); }
  std::string screen() {
    app.settle();
    return app.shown()->className();
  }
  void expectNothingHalfWay() {
    app.settle();
    for (const auto* each : app.window().contentItem()->childItems()) {
      EXPECT_EQ(each->isVisible(), each == app.page()) << each->objectName().toStdString();
      EXPECT_EQ(each->x(), 0) << each->objectName().toStdString();
    }
  }

  static constexpr int kEdge = 6;
  static constexpr int kHeight = 500;
};

TEST_F(BackDragTest, ThePageFollowsTheFingerAndShowsTheOneBelow) {
  openCampaign();
  put({kEdge, kHeight});
  double before = 0;
  for (int x = kEdge; x < 300; x += kStep) {
    drawTo({x, kHeight});
    EXPECT_LE(campaign()->x() - before, kStep) << "at " << x;
    before = campaign()->x();
  }
  EXPECT_NEAR(campaign()->x(), 300 - kEdge - kStep, 2 * kStep);
  EXPECT_TRUE(home()->isVisible());
  EXPECT_GT(campaign()->z(), home()->z());
  EXPECT_LT(home()->x(), 0);
  EXPECT_GT(home()->x(), -app.window().width() / 3.0);
  draw(290, 60);
  EXPECT_LT(campaign()->x(), 60);
  rest();
  lift({60, kHeight});
  EXPECT_EQ(screen(), "OneCampaignViewController");
}

TEST_F(BackDragTest, BothPagesGoOnFromWhereTheyWereLet) {
  openCampaign();
  drawFromTheEdge(250);
  rest();
  auto* left = campaign();
  const double x = left->x();
  const double below = home()->x();
  lift({250, kHeight});
  EXPECT_EQ(app.navigation().topViewController()->className(), "TabBarVC");
  EXPECT_GE(left->x(), x);
  EXPECT_LT(left->x(), x + 60);
  EXPECT_GE(home()->x(), below);
  EXPECT_LT(home()->x(), below + 30);
  EXPECT_EQ(screen(), "OtherCampaignsTableViewController");
  expectNothingHalfWay();
}

TEST_F(BackDragTest, AScreenThatIsDrawnAndGivenUpIsUnchanged) {
  openCampaign();
  type("dollarAmountField", "12");
  const auto* page = app.page();
  drawFromTheEdge(120);
  ASSERT_GT(page->x(), 80);
  rest();
  lift({120, kHeight});
  EXPECT_GT(page->x(), 0) << "it returned in one frame";
  expectNothingHalfWay();
  EXPECT_EQ(app.page(), page);
  EXPECT_EQ(shownWords("dollarAmountField"), "12");
  EXPECT_TRUE(app.require("dollarAmountField").hasActiveFocus());
  EXPECT_NE(app.application->firstResponder(), nullptr);
}

TEST_F(BackDragTest, AFlickLeadsBackAndOneTowardsTheEdgeDoesNot) {
  openCampaign();
  put({kEdge, kHeight});
  for (const int x : {40, 80, 120}) drawTo({x, kHeight});
  lift({120, kHeight});
  EXPECT_EQ(screen(), "OtherCampaignsTableViewController");
  click("abc-0");
  drawFromTheEdge(270);
  rest();
  for (const int x : {240, 200}) drawTo({x, kHeight});
  lift({200, kHeight});
  EXPECT_EQ(screen(), "OneCampaignViewController");
}

TEST_F(BackDragTest, ThePageBelowTakesNoInput) {
  openCampaign();
  drawFromTheEdge(300);
  EXPECT_FALSE(home()->isEnabled());
  const std::unique_ptr<QPointingDevice> other(QTest::createTouchDevice());
  QTest::touchEvent(&app.window(), other.get()).press(0, QPoint(100, 200));
  QTest::touchEvent(&app.window(), other.get()).release(0, QPoint(100, 200));
  QTest::mouseClick(&app.window(), Qt::LeftButton, {}, QPoint(40, 820));  // on a tab
  EXPECT_EQ(app.shown()->className(), "OneCampaignViewController");
  draw(300, 20);
  rest();
  lift({20, kHeight});
  EXPECT_EQ(screen(), "OneCampaignViewController");
  expectNothingHalfWay();
}

TEST_F(BackDragTest, EscapeInTheMiddleLeavesOneScreenAndTheFingerNoOther) {
  signIn();
  click("fundedTab");
  click("Funded-0");
  click("campaignUpdates");
  drawFromTheEdge(150);
  app.press(Qt::Key_Escape);
  draw(160, 300);
  lift({300, kHeight});
  EXPECT_EQ(screen(), "OneCampaignViewController");
  expectNothingHalfWay();
}

TEST_F(BackDragTest, AScreenThatComesInTheMiddleStaysWhenTheFingerIsLifted) {
  openCampaign();
  type("dollarAmountField", "1");
  drawFromTheEdge(150);
  app.application->tap(viewNamed(app.navigation(), "FundButton"));
  EXPECT_GT(pageOf("ConfirmPageVC")->x(), 0);
  draw(160, 300);
  lift({300, kHeight});
  EXPECT_EQ(screen(), "ConfirmPageVC");
  expectNothingHalfWay();
}

TEST_F(BackDragTest, ASecondFingerEndsNothingHalfWay) {
  openCampaign();
  for (const QPoint second : {QPoint(10, 300), QPoint(200, 300)}) {
    drawFromTheEdge(150);
    const auto hands = [this] { return QTest::touchEvent(&app.window(), finger_.get()); };
    hands().move(0, QPoint(150, kHeight)).press(1, second);
    waitForFrame();
    hands().move(0, QPoint(200, kHeight)).move(1, second);
    waitForFrame();
    hands().move(0, QPoint(200, kHeight)).release(1, second);
    rest();
    lift({200, kHeight});
    expectNothingHalfWay();
    if (screen() != "OneCampaignViewController") click("abc-0");
  }
}

TEST_F(BackDragTest, AFingerThatIsTakenAwayLetsThePageReturn) {
  openCampaign();
  drawFromTheEdge(300);
  QTouchEvent cancelled(QEvent::TouchCancel, finger_.get());
  QCoreApplication::sendEvent(&app.window(), &cancelled);
  EXPECT_EQ(screen(), "OneCampaignViewController");
  expectNothingHalfWay();
}

TEST_F(BackDragTest, AWindowThatIsHiddenInTheMiddleShowsAWholeScreenAgain) {
  openCampaign();
  drawFromTheEdge(300);
  app.window().hide();
  QCoreApplication::processEvents();
  app.window().show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&app.window()));
  expectNothingHalfWay();
  EXPECT_EQ(screen(), "OneCampaignViewController");
}

TEST_F(BackDragTest, AResizeInTheMiddleLeavesTwoWholePages) {
  openCampaign();
  drawFromTheEdge(200);
  app.window().resize(600, 700);
  ASSERT_TRUE(app.waitUntil([&] { return campaign()->width() == 600; }));
  draw(210, 260);
  rest();
  lift({260, kHeight});
  EXPECT_EQ(screen(), "OtherCampaignsTableViewController");
  expectNothingHalfWay();
  EXPECT_EQ(home()->width(), 600);
}

TEST_F(BackDragTest, APageCaughtOnItsWayIsDrawnFromWhereItIs) {
  openCampaign();
  drawFromTheEdge(140);
  rest();
  lift({140, kHeight});
  const double x = campaign()->x();
  ASSERT_GT(x, kStep);
  const int edge = static_cast<int>(std::floor(x)) + kEdge;
  put({edge, kHeight});
  draw(edge, edge + 3 * kStep);
  EXPECT_LE(campaign()->x(), x + 3 * kStep);
  EXPECT_GT(campaign()->x(), 0);
  rest();
  lift({edge + 3 * kStep, kHeight});
  expectNothingHalfWay();
}

}  // namespace
}  // namespace leafund
