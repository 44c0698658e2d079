#include <QStyleHints>
#include <QWheelEvent>

#include "tests/window/EditMenuFixture.h"

namespace leafund {
namespace {

using EditMenuPressTest = EditMenuFixture;

TEST_F(EditMenuPressTest, ByFingerWhatIsSelectedStaysSoUntilItIsChosen) {
  openForm();
  for (const auto* name : {"nameOfCreator", "shortDescription"}) {
    SCOPED_TRACE(name);
    QGuiApplication::clipboard()->clear();
    type(name, "green");
    longPress(middleOf(name));
    touch("Select all");
    EXPECT_EQ(selected(name), "green");
    longPress(middleOf(name));
    EXPECT_EQ(offers(), (Names{"Cut", "Copy"}));
    touch("Cut");
    EXPECT_EQ(shownWords(name), "");
    EXPECT_EQ(clipboard(), "green");
  }
}

TEST_F(EditMenuPressTest, AFingerRestsAnywhereOnTheBox) {
  QGuiApplication::clipboard()->setText("x");
  const QPoint caption = middleOf("userEmail") - QPoint(0, 20);
  longPress(caption);
  EXPECT_EQ(offers(), (Names{"Paste"}));
}

// By the desktop, for a gesture of its own.
TEST_F(EditMenuPressTest, AFingerThatIsTakenAwayOpensNone) {
  QGuiApplication::clipboard()->setText("x");
  for (const auto where : {middleOf("userEmail"), middleOf("userEmail") - QPoint(0, 20)}) {
    put(where);
    QTouchEvent cancelled(QEvent::TouchCancel, finger_.get());
    QCoreApplication::sendEvent(&app.window(), &cancelled);
    QTest::qWait(QGuiApplication::styleHints()->mousePressAndHoldInterval() + 100);
    EXPECT_EQ(offers(), Names{});
    touchItem("userEmail");
    EXPECT_TRUE(app.application->firstResponder());
    app.press(Qt::Key_Tab);
  }
}

TEST_F(EditMenuPressTest, APageStandsStillForIt) {
  app.window().resize(390, 400);
  signIn();
  click("abc-0");
  click("dollarAmountField");
  for (int i = 0; i < 4; ++i) app.press(Qt::Key_PageDown);
  app.settle();
  const double place = app.require("campaignText").mapToScene({0, 0}).y();
  const QPoint words(100, 300);
  QTest::mouseClick(&app.window(), Qt::RightButton, {}, words);
  app.settle();
  ASSERT_EQ(offers(), (Names{"Copy"}));
  EXPECT_EQ(app.require("campaignText").mapToScene({0, 0}).y(), place) << "opening";
  QWheelEvent turn(QPointF(words), app.window().mapToGlobal(QPointF(words)), {}, {0, 120}, {}, {},
                   Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&app.window(), &turn);
  EXPECT_EQ(app.require("campaignText").mapToScene({0, 0}).y(), place) << "wheel";
  app.press(Qt::Key_PageUp);
  EXPECT_EQ(app.require("campaignText").mapToScene({0, 0}).y(), place);
  choose("Copy");
  EXPECT_EQ(app.require("campaignText").mapToScene({0, 0}).y(), place);
}

TEST_F(EditMenuPressTest, WhatContinuesAPressOnItPressesNothingBelow) {
  type("userEmail", "wren");
  type("password", "wren");
  rightClick("userEmail");
  ASSERT_NE(menu(), nullptr);
  clickTimes("signInButton", 2);
  EXPECT_EQ(screen(), "LandingPageVC");
}

TEST_F(EditMenuPressTest, AKeyHeldOnItGoesNoFurther) {
  type("userEmail", "wren");
  QTest::keyClick(&app.window(), Qt::Key_A, Qt::ControlModifier);
  key(Qt::Key_Menu, QEvent::KeyPress);
  key(Qt::Key_Menu, QEvent::KeyRelease);
  app.settle();
  ASSERT_EQ(app.window().activeFocusItem()->objectName(), "Cut");
  app.press(Qt::Key_Down);
  pass(1000);
  key(Qt::Key_Space, QEvent::KeyPress);
  for (int i = 0; i < 3; ++i) key(Qt::Key_Space, QEvent::KeyPress, true);
  EXPECT_EQ(clipboard(), "wren");
  EXPECT_EQ(shownWords("userEmail"), "wren");
}

TEST_F(EditMenuPressTest, ByPointerItLeavesNoRing) {
  type("userEmail", "wren");
  const auto rings = [&] {
    int shown = 0;
    std::vector<QQuickItem*> waiting{app.window().contentItem()};
    while (!waiting.empty()) {
      auto* item = waiting.back();
      waiting.pop_back();
      for (auto* child : item->childItems()) waiting.push_back(child);
      const bool isRing = QByteArray(item->metaObject()->className()).startsWith("FocusRing");
      shown += isRing && item->isVisible();
    }
    return shown;
  };
  app.press(Qt::Key_Menu);
  app.settle();
  ASSERT_EQ(rings(), 1) << "by keys it has one";
  app.press(Qt::Key_Escape);
  app.settle();
  rightClick("userEmail");
  ASSERT_NE(menu(), nullptr);
  EXPECT_EQ(rings(), 0);
  choose("Select all");
  EXPECT_EQ(rings(), 0);
}

TEST_F(EditMenuPressTest, ARightClickOnAnotherTextAsksForItsOwn) {
  type("userEmail", "wren");
  type("password", "wren");
  rightClick("password");
  ASSERT_NE(menu(), nullptr);
  rightClick("userEmail");
  ASSERT_NE(menu(), nullptr);
  choose("Select all");
  EXPECT_EQ(selected("userEmail"), "wren");
}

}  // namespace
}  // namespace leafund
