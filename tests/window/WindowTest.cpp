#include <gtest/gtest.h>

#include <QColor>
#include <QElapsedTimer>
#include <QIcon>
#include <QImage>
#include <QQuickItem>
#include <QScreen>
#include <QTest>
#include <algorithm>
#include <limits>

#include "interface/qml/LeafundWindow.h"
#include "model/Catalogue.h"
#include "platform/foundation/AmountText.h"
#include "platform/uikit/UITabContainer.h"
#include "platform/uikit/UITableView.h"
#include "tests/support/PictureAnswers.h"
#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

TEST_F(WindowTest, TheWindowStartsAtThePhonesNaturalSizeOrTheScreensWhereThatIsSmaller) {
  const QSize screen = app.window().screen()->availableSize();
  ASSERT_LT(screen.height(), 844);
  EXPECT_EQ(QtWindow(leafundWindow()).size(), QSize(390, screen.height()));
}

TEST_F(WindowTest, TheWindowBearsTheIconWithoutBeingInstalled) {
  ASSERT_TRUE(app.waitUntil([&] { return !app.window().icon().isNull(); }));
  const QImage icon = app.window().icon().pixmap(64).toImage();
  ASSERT_EQ(icon.size(), QSize(64, 64));
  EXPECT_EQ(icon.pixelColor(0, 0).alpha(), 0);
  EXPECT_EQ(icon.pixelColor(20, 40), QColor("#f0b73f"));  // the coin
}

// On Wayland a window larger than its maximised or fullscreen state loses its connection, and with
// it the process.
TEST_F(WindowTest, TheWindowTakesEverySizeOnEveryScreenAndTheToolkitFollows) {
  const auto takeAll = [&] {
    for (const QSize size : {QSize(280, 240), QSize(90, 60), QSize(1, 1), QSize(390, 844)}) {
      app.window().resize(size);
      ASSERT_TRUE(app.waitUntil([&] { return app.page()->width() == size.width(); }));
      app.settle();
      const auto& root = app.navigation().topViewController()->view()->frame();
      EXPECT_EQ(root.y + root.height, std::max<double>(root.y, size.height()));
    }
  };
  EXPECT_EQ(app.window().minimumSize(), QSize(0, 0));
  takeAll();
  signIn();
  takeAll();
  click("abc-0");
  takeAll();
  click("backButton");
  click("mineTab");
  click("newButton");
  takeAll();
}

// Qt warns of letters without a size.
TEST_F(WindowTest, NoWindowIsTooNarrowForTheTitlesOfTheTabs) {
  signIn();
  for (int width = 60; width > 0; --width) {
    app.window().resize(width, 240);
    ASSERT_TRUE(app.waitUntil([&] { return app.page()->width() == width; }));
    ASSERT_FALSE(HasFailure()) << width;
  }
}

TEST_F(WindowTest, AHiddenBackButtonRefusesBarAndKeys) {
  signIn();
  EXPECT_FALSE(app.require("backButton").isVisible());
  app.press(Qt::Key_Escape);
  app.press(Qt::Key_Back);
  app.settle();
  EXPECT_EQ(app.navigation().topViewController()->className(), "TabBarVC");
}

TEST_F(WindowTest, TheBackButtonGoesBack) {
  click("signUpButton");
  EXPECT_TRUE(app.require("backButton").isVisible());
  click("backButton");
  EXPECT_EQ(app.shown()->className(), "LandingPageVC");
}

TEST_F(WindowTest, AnIncomingScreenTakesAClickAtOnce) {
  signIn();
  for (int i = 0; i < 10; ++i) {  // on a busy machine a slide may be over before it is looked at
    click("browseTab");
    click("abc-0");
    app.press(Qt::Key_Escape);
    const auto& tab = app.require("newsTab");
    const auto where = tab.mapToScene({tab.width() / 2, tab.height() / 2}).toPoint();
    const bool sliding = app.page()->x() != 0;
    QTest::mouseClick(&app.window(), Qt::LeftButton, {}, where);
    if (!sliding) continue;
    EXPECT_EQ(app.shown()->className(), "NewsFeedVC");
    return;
  }
  FAIL() << "no slide was met";
}

TEST_F(WindowTest, ASelectedTabIsDrawnInTheAccentColourAndTheOthersAreNot) {
  signIn();
  const QColor accent(83, 134, 47);
  const auto colourOf = [&](const std::string& name) {
    const QImage shot = app.window().grabWindow();
    const auto& tab = app.require(name);
    const QRect area = tab.mapRectToScene(tab.boundingRect()).toRect();
    int accented = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
      for (int x = area.left(); x <= area.right(); ++x) {
        accented += shot.pixelColor(x, y) == accent;
      }
    }
    return accented;
  };
  EXPECT_GT(colourOf("browseTab"), 20);
  EXPECT_EQ(colourOf("newsTab"), 0);
}

TEST_F(WindowTest, OddGoalsAreShownWithoutDamage) {
  constexpr float kGoals[] = {0, -5, std::numeric_limits<float>::quiet_NaN(),
                              std::numeric_limits<float>::infinity(), 3.4e38F};
  signIn();
  for (const float goal : kGoals) {
    otherCampaigns()[0]->setTotalFunding(goal);
    click("abc-0");
    EXPECT_EQ(shownWords("desiredFund").toStdString(), dollarText(goal));
    EXPECT_EQ(shownWords("currentFund"), "$120.00");
    const auto& fund = app.require("desiredFund");
    EXPECT_LE(fund.mapToScene({fund.width(), 0}).x(), app.window().width()) << goal;
    app.press(Qt::Key_Escape);
    app.settle();
  }
}

TEST_F(WindowTest, RowsStandInTheWindowInTheirOrder) {
  signIn();
  app.require("table").setProperty("contentY", 300.0);
  app.settle();
  app.require("table").setProperty("contentY", 100.0);
  app.settle();
  const auto& table = dynamic_cast<UITableView&>(*app.shown()->view());
  QList<QQuickItem*> siblings = app.require("abc-1").parentItem()->childItems();
  int previous = -1;
  for (const auto& [row, cell] : table.visibleCells()) {
    auto& item = app.require("abc-" + std::to_string(row));
    EXPECT_EQ(item.y(), 160.0 * static_cast<double>(row));
    EXPECT_GT(siblings.indexOf(&item), previous);
    previous = static_cast<int>(siblings.indexOf(&item));
  }
}

TEST_F(WindowTest, AKeyThatIsHeldDownLeavesOneScreen) {
  signIn();
  click("fundedTab");
  click("Funded-0");
  click("campaignUpdates");
  app.press(Qt::Key_Escape);
  QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, true);
  QCoreApplication::sendEvent(&app.window(), &repeated);
  EXPECT_EQ(app.shown()->className(), "OneCampaignViewController");
}

TEST_F(WindowTest, TakingTheWindowDownWithFetchesUnderWayEndsAtOnceAndFreesTheScreens) {
  for (const auto& campaign : otherCampaigns()) {
    campaign->setPhoto(app.server().serve("/silent.jpg", answers::neverAnswers()));
  }
  signIn();
  ASSERT_TRUE(app.server().waitForRequests(1));
  const std::weak_ptr<UIViewController> browse = app.shown();
  QElapsedTimer clock;
  clock.start();
  app.host.stop();
  EXPECT_LT(clock.elapsed(), 1000);
  app.application.reset();
  EXPECT_TRUE(browse.expired());
}

TEST(WindowLoopTest, ClosingTheWindowEndsTheLoopAndAnswersZero) {
  int argc = 1;
  char name[] = "leafund";
  char* argv[] = {name, nullptr};
  QtHost host(argc, argv, leafundWindow());
  setCurrentHost(&host);
  const auto application =
      std::make_shared<UIApplication>(host, mainStoryboard(), std::make_shared<AppDelegate>());
  host.post([&] { host.window()->close(); });
  EXPECT_EQ(host.run(*application), 0);
  EXPECT_EQ(host.window(), nullptr);
}

}  // namespace
}  // namespace leafund
