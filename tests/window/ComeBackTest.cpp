#include <QWheelEvent>

#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"
#include "tests/window/FingerFixture.h"

namespace leafund {
namespace {

// A list is scrolled, a row opened, and the user comes back: in every way there is.
class ComeBackTest : public FingerTest {
 protected:
  UITableView& table() { return dynamic_cast<UITableView&>(*app.shown()->view()); }
  double shownOffset() { return app.require("table").property("contentY").toDouble(); }

  void turnWheel() {
    const QPointF at(200, 400);
    QWheelEvent event(at, app.window().mapToGlobal(at), {}, {0, -120}, {}, {}, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&app.window(), &event);
  }
  void scrollByWheel(int steps) {
    for (int i = 0; i < steps; ++i) turnWheel();
    stand();
  }
  void scrollByKeys(int steps) {
    for (int i = 0; i < steps; ++i) app.press(Qt::Key_Down);
    stand();
  }
  void scrollByFinger(int steps) {
    for (int i = 0; i < steps; ++i) touch({200, 600}, {200, 500});
    stand();
  }
  // Until the list is at rest.
  void stand() {
    auto& list = app.require("table");
    EXPECT_TRUE(app.waitUntil([&] { return !list.property("moving").toBool(); }));
    app.settle();
  }

  // Where a row is seen, in the window; nothing where none of it is.
  std::optional<QPoint> seen(std::ptrdiff_t row) {
    const auto& list = app.require("table");
    const auto shown = table().visibleCells().find(row);
    if (shown == table().visibleCells().end()) return std::nullopt;
    const auto frame = shown->second->frame();
    const double top = std::max(0.0, frame.y - shownOffset());
    const double bottom = std::min(list.height(), frame.y + frame.height - shownOffset());
    if (bottom - top < 4) return std::nullopt;
    return list.mapToScene({200, (top + bottom) / 2}).toPoint();
  }

  void expectSamePlaceAfterTrip(std::ptrdiff_t row, const std::function<void()>& open,
                                const std::function<void()>& back) {
    SCOPED_TRACE("row " + std::to_string(row) + " at " + std::to_string(shownOffset()));
    ++trips;
    const double before = shownOffset();
    const auto name = table().visibleCells().at(row)->reuseIdentifier() + '-' + std::to_string(row);
    open();
    app.settle();
    ASSERT_EQ(app.shown()->className(), "OneCampaignViewController");
    back();
    app.settle();
    ASSERT_EQ(app.shown()->className(), "OtherCampaignsTableViewController");
    EXPECT_EQ(shownOffset(), before);
    EXPECT_EQ(table().contentOffset().y, before);
    ASSERT_NE(app.window().activeFocusItem(), nullptr);
    EXPECT_EQ(app.window().activeFocusItem()->objectName().toStdString(), name);
  }
  // Goes there by Tab.
  std::string rowInFocus() {
    const auto name = [this] { return app.window().activeFocusItem()->objectName().toStdString(); };
    for (int i = 0; i < 10 && !name().starts_with("abc-"); ++i) app.press(Qt::Key_Tab);
    EXPECT_TRUE(name().starts_with("abc-")) << name();
    return name();
  }
  void click(QPoint where) { QTest::mouseClick(&app.window(), Qt::LeftButton, {}, where); }
  using WindowTest::click;

  int trips = 0;
  const std::function<void()> escape = [this] { app.press(Qt::Key_Escape); };
};

TEST_F(ComeBackTest, TheListStandsWhereItWasWhicheverRowWasClickedAfterTheWheel) {
  signIn();
  for (int steps = 0; steps <= 5; ++steps) {
    for (std::ptrdiff_t row = 0; row < 7; ++row) {
      const auto where = seen(row);
      if (where) expectSamePlaceAfterTrip(row, [&] { click(*where); }, escape);
    }
    scrollByWheel(1);
  }
  EXPECT_GE(trips, 25);
}

TEST_F(ComeBackTest, TheListStandsWhereItWasWhicheverRowWasClickedAfterKeys) {
  signIn();
  for (int steps = 0; steps <= 5; ++steps) {
    for (std::ptrdiff_t row = 0; row < 7; ++row) {
      const auto where = seen(row);
      const auto bar = [this] { WindowTest::click("backButton"); };
      if (where) expectSamePlaceAfterTrip(row, [&] { click(*where); }, bar);
    }
    scrollByKeys(1);
  }
  EXPECT_GE(trips, 25);
}

TEST_F(ComeBackTest, TheListStandsWhereItWasWhicheverRowAFingerTouched) {
  signIn();
  for (int steps = 0; steps <= 5; ++steps) {
    for (std::ptrdiff_t row = 0; row < 7; ++row) {
      const auto where = seen(row);
      const auto drag = [this] { touch({6, 500}, {220, 510}); };
      if (where) expectSamePlaceAfterTrip(row, [&] { touch(*where); }, drag);
    }
    scrollByFinger(1);
  }
  EXPECT_GE(trips, 25);
}

TEST_F(ComeBackTest, TheListStandsWhereItWasAfterTheRowInFocusWasOpenedByReturn) {
  signIn();
  for (int steps = 1; steps <= 5; ++steps) {
    scrollByKeys(1);
    const auto name = rowInFocus();
    expectSamePlaceAfterTrip(
        std::stol(name.substr(4)), [this] { app.press(Qt::Key_Return); }, escape);
  }
}

TEST_F(ComeBackTest, AFingerDrawnAlongAListThatHasEndedOpensNoRow) {
  signIn();
  app.press(Qt::Key_End);
  for (const auto& way : {QPoint(0, -60), QPoint(0, -90)})
    touch({200, 400}, QPoint(200, 400) + way);
  app.settle();
  EXPECT_EQ(app.shown()->className(), "OtherCampaignsTableViewController");
  touch({200, 400}, {203, 404});
  app.settle();
  EXPECT_EQ(app.shown()->className(), "OneCampaignViewController");
}

TEST_F(ComeBackTest, TheListGoesWhereLogicPutsIt) {
  signIn();
  for (const double offset : {100.0, 0.0, 250.0}) {
    app.application->turn([&] { table().setContentOffset({0, offset}); });
    app.settle();
    EXPECT_EQ(shownOffset(), offset);
    EXPECT_EQ(table().contentOffset().y, offset);
  }
}

TEST_F(ComeBackTest, AFlingEndsWhereItsListIsCovered) {
  signIn();
  const auto& list = app.require("table");
  for (const bool byTab : {false, true}) {
    rowInFocus();
    app.press(Qt::Key_PageUp);
    stand();
    QTest::touchEvent(&app.window(), finger_.get()).press(0, QPoint(200, 600));
    for (int y = 570; y >= 420; y -= 30) {
      QTest::touchEvent(&app.window(), finger_.get()).move(0, QPoint(200, y));
      QTest::qWait(8);
    }
    QTest::touchEvent(&app.window(), finger_.get()).release(0, QPoint(200, 420));
    ASSERT_TRUE(app.waitUntil([&] { return list.property("flicking").toBool(); }));
    if (byTab) {
      click(middleOf("newsTab"));
    } else {
      app.press(Qt::Key_Return);
    }
    const double covered = list.property("contentY").toDouble();
    EXPECT_FALSE(list.property("moving").toBool());
    app.settle();
    if (byTab) {
      click(middleOf("browseTab"));
    } else {
      app.press(Qt::Key_Escape);
    }
    app.settle();
    EXPECT_EQ(shownOffset(), covered);
    EXPECT_EQ(table().contentOffset().y, covered);
  }
}

TEST_F(ComeBackTest, AResizeWhileTheCampaignIsOpenLeavesTheListInOrder) {
  signIn();
  for (const int height : {700, 500, 844, 1200, 560}) {
    scrollByWheel(5);
    const auto row = table().visibleCells().begin()->first;
    click(*seen(row));
    app.settle();
    ASSERT_EQ(app.shown()->className(), "OneCampaignViewController");
    app.window().resize(390, height);
    ASSERT_TRUE(app.waitUntil([&] { return app.page()->height() == height; }));
    app.press(Qt::Key_Escape);
    app.settle();
    EXPECT_EQ(shownOffset(), table().contentOffset().y);
    EXPECT_LE(table().contentOffset().y, table().greatestOffset());
  }
}

}  // namespace
}  // namespace leafund
