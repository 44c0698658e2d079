#include <gmock/gmock.h>

#include "platform/uikit/UITabContainer.h"
#include "platform/uikit/UITableView.h"
#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

// What the window has room for, by its width.
class WindowClassTest : public WindowTest {
 protected:
  void resize(int width, int height) {
    app.window().resize(width, height);
    ASSERT_TRUE(app.waitUntil([&] { return app.page()->width() == width; }));
    app.settle();
  }
  QRectF placeOf(const std::string& name) {
    auto& item = app.require(name);
    return item.mapRectToScene({0, 0, item.width(), item.height()});
  }
  CGRect tabBarFrame() {
    const auto& home = *app.navigation().topViewController()->view();
    for (const auto& tabs : home.subviews()) {
      if (const auto* container = dynamic_cast<const UITabContainer*>(tabs.get())) {
        return container->tabBar()->frame();
      }
    }
    throw std::logic_error("there are no tabs");
  }
  void expectBeside(const std::string& left, const std::string& right) {
    EXPECT_LE(placeOf(left).right(), placeOf(right).left()) << left << " and " << right;
  }
  void expectAbove(const std::string& upper, const std::string& lower) {
    EXPECT_LE(placeOf(upper).bottom(), placeOf(lower).top()) << upper << " and " << lower;
  }
  void expectTwoParts(const std::string& first, const std::string& second) {
    resize(559, 800);
    expectAbove(first, second);
    for (const QSize size : {QSize(560, 800), QSize(844, 390), QSize(1280, 800)}) {
      resize(size.width(), size.height());
      expectBeside(first, second);
    }
  }
};

TEST_F(WindowClassTest, TabsStandInARailWhereTheWindowIsWide) {
  struct Expected {
    QSize window;
    double rail;  // 0 for a bar
  };
  signIn();
  for (const auto& [size, rail] : {Expected{{559, 900}, 0},
                                   {{559, 300}, 0},
                                   {{560, 800}, 80},
                                   {{560, 300}, 80},
                                   {{839, 800}, 80},
                                   {{840, 479}, 80},
                                   {{840, 480}, 96},
                                   {{1920, 400}, 80},
                                   {{1920, 1080}, 96},
                                   {{390, 844}, 0}}) {
    SCOPED_TRACE(std::to_string(size.width()) + "x" + std::to_string(size.height()));
    resize(size.width(), size.height());
    const double top = rail > 0 ? 0 : size.height() - UITabBar::kHeight;
    const QRectF seen(0, top, rail > 0 ? rail : size.width(), size.height() - top);
    EXPECT_EQ(placeOf("tabBar"), seen);
    EXPECT_EQ(tabBarFrame(), (CGRect{0, seen.y() - 56, seen.width(), seen.height()}));
    const auto column = app.shown()->view()->frame();
    EXPECT_NEAR(column.x + column.width / 2, rail + (size.width() - rail) / 2, 0.5);
  }
}

TEST_F(WindowClassTest, TheTitleInTheBarStandsWhereTheColumnBegins) {
  const auto expectAtEdge = [this](const std::string& first, double outset) {
    EXPECT_EQ(placeOf("barTitle").left(), placeOf(first).left() + outset) << first;
  };
  signIn();
  for (const QSize size : {QSize(1280, 800), QSize(844, 390), QSize(390, 844)}) {
    SCOPED_TRACE(size.width());
    resize(size.width(), size.height());
    click("browseTab");
    expectAtEdge("abc-0", 0);
    click("newsTab");
    expectAtEdge("rideStoryPicture", 0);
    click("mineTab");
    click("newButton");
    if (size.width() < 560) continue;  // on a phone it stands beside the way back
    expectAtEdge("nameOfCreator", -16);
    app.press(Qt::Key_Escape);
    app.settle();
  }
}

TEST_F(WindowClassTest, TheKeyboardOnTheScreenChangesNothingOfIt) {
  signIn();
  resize(1280, 800);
  app.window().setKeyboardArea({0, 300, 1280, 500});
  app.settle();
  EXPECT_EQ(app.page()->height(), 300);
  EXPECT_EQ(placeOf("tabBar"), QRectF(0, 0, 96, 300));
  app.window().setKeyboardArea({});
}

TEST_F(WindowClassTest, WhereThereIsRoomPagesHaveTwoColumns) {
  expectTwoParts("brand", "userEmail");
  signIn();
  click("abc-0");
  expectTwoParts("campaignTitle", "about");
  type("dollarAmountField", "1");
  click("FundButton");
  expectTwoParts("amount", "yesButton");
}

TEST_F(WindowClassTest, InAnExpandedWindowNoColumnIsTooWideToRead) {
  resize(1920, 1080);
  EXPECT_LE(placeOf("signInButton").width(), 480);
  signIn();
  click("abc-0");
  EXPECT_EQ(placeOf("FundButton").width(), 400);
  EXPECT_LE(placeOf("campaignText").width(), 640);
  app.press(Qt::Key_Escape);
  app.settle();
  click("mineTab");
  click("newButton");
  EXPECT_EQ(placeOf("createButton").width(), 480);
  app.press(Qt::Key_Escape);
  app.settle();
  click("newsTab");
  expectBeside("rideStoryPicture", "compostStoryPicture");
  expectAbove("rideStoryText", "pledgeStoryPicture");
}

TEST_F(WindowClassTest, WhatIsTypedAndTheFocusStayWhereverTheWindowGoes) {
  signIn();
  click("abc-0");
  type("dollarAmountField", "12.5");
  const auto screens = app.navigation().viewControllers().size();
  const auto editing = app.application->firstResponder();
  ASSERT_NE(editing, nullptr);
  for (const QSize size : {QSize(1280, 800), QSize(844, 390), QSize(600, 800), QSize(390, 844)}) {
    SCOPED_TRACE(size.width());
    resize(size.width(), size.height());
    EXPECT_EQ(shownWords("dollarAmountField"), "12.5");
    EXPECT_TRUE(app.require("dollarAmountField").hasActiveFocus());
    EXPECT_EQ(app.application->firstResponder(), editing);
    EXPECT_EQ(app.navigation().viewControllers().size(), screens);
    const QRectF input = placeOf("dollarAmountField");
    EXPECT_TRUE(app.paneOf(app.require("dollarAmountField")).contains(input));
  }
  app.typeKeys("0");
  app.settle();
  EXPECT_EQ(shownWords("dollarAmountField"), "12.50");
}

TEST_F(WindowClassTest, AListStaysWhereItWasScrolled) {
  signIn();
  app.require("table").setProperty("contentY", 200);
  app.settle();
  for (const QSize size : {QSize(1280, 800), QSize(844, 390), QSize(390, 844)}) {
    resize(size.width(), size.height());
    EXPECT_EQ(app.require("table").property("contentY").toDouble(), 200) << size.width();
    EXPECT_EQ(std::dynamic_pointer_cast<UITableView>(app.shown()->view())->contentOffset().y, 200);
  }
}

TEST_F(WindowClassTest, ArrowsLeadFromTabToTabAsTheyStand) {
  signIn();
  const auto walk = [this](Qt::Key ahead, Qt::Key back) {
    app.require("browseTab").forceActiveFocus(Qt::TabFocusReason);
    for (const auto* name : {"fundedTab", "mineTab", "newsTab", "newsTab"}) {
      app.press(ahead);
      EXPECT_TRUE(app.require(name).hasActiveFocus()) << name;
    }
    app.press(back);
    EXPECT_TRUE(app.require("mineTab").hasActiveFocus());
  };
  walk(Qt::Key_Right, Qt::Key_Left);
  resize(844, 390);
  EXPECT_TRUE(app.require("mineTab").hasActiveFocus());
  walk(Qt::Key_Down, Qt::Key_Up);
  EXPECT_EQ(app.require("table").property("contentY").toDouble(), 0);
}

TEST_F(WindowClassTest, InTheLowestWindowEveryTabOfTheRailIsATarget) {
  signIn();
  resize(600, 240);
  for (const auto* name : {"browseTab", "fundedTab", "mineTab", "newsTab"}) {
    EXPECT_GE(placeOf(name).height(), 48) << name;
    EXPECT_TRUE(QRectF(0, 0, 80, 240).contains(placeOf(name))) << name;
  }
}

// The system's text is half as large again.
struct LargeText {
  LargeText() {
    qputenv("QT_FONT_DPI", "144");
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
  }
};
class LargeTextWindowClassTest : private LargeText, public WindowClassTest {
 protected:
  double titleSize() {  // in pixels
    for (const auto* child : app.require("browseTab").findChildren<QQuickItem*>()) {
      if (!child->inherits("QQuickText")) continue;
      return child->property("font").value<QFont>().pointSizeF() * 144 / 72;
    }
    return 0;
  }
};

TEST_F(LargeTextWindowClassTest, TitlesGrowWithItInARailAndNotInABar) {
  signIn();
  EXPECT_NEAR(titleSize(), 20, 0.5);
  resize(600, 800);
  EXPECT_EQ(placeOf("tabBar").width(), 120);
  EXPECT_NEAR(titleSize(), 30, 1);
}

}  // namespace
}  // namespace leafund
