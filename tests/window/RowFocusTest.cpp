#include <QWheelEvent>
#include <QWindow>

#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

// The row in focus, where the list is short or another window is in front.
class RowFocusTest : public WindowTest {
 protected:
  std::string focused() {
    const auto* item = app.window().activeFocusItem();
    return item != nullptr ? item->objectName().toStdString() : "";
  }
  void goToFirstRow() {
    signIn();
    for (int i = 0; i < 10 && focused() != "abc-0"; ++i) app.press(Qt::Key_Tab);
    ASSERT_EQ(focused(), "abc-0");
  }
  void rest() {
    auto& list = app.require("table");
    EXPECT_TRUE(app.waitUntil([&] { return !list.property("moving").toBool(); }));
    app.settle();
  }
};

TEST_F(RowFocusTest, InALowWindowARowThatIsSeenInPartTakesTheFocus) {
  app.window().resize(844, 390);
  ASSERT_TRUE(app.waitUntil([&] { return app.page()->width() == 844; }));
  goToFirstRow();
  for (int page = 0; page < 5; ++page) {
    app.press(Qt::Key_PageDown);
    rest();
    EXPECT_TRUE(focused().starts_with("abc-")) << page << ": " << focused();
  }
}

TEST_F(RowFocusTest, AListThatIsScrolledInAnInactiveWindowKeepsTheFocusOnARowInSight) {
  goToFirstRow();
  QWindow other;
  other.show();
  other.requestActivate();
  ASSERT_TRUE(app.waitUntil([&] { return !app.window().isActive(); }));
  for (int i = 0; i < 3; ++i) {
    const QPointF at(200, 400);
    QWheelEvent event(at, app.window().mapToGlobal(at), {}, {0, -120}, {}, {}, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&app.window(), &event);
  }
  rest();
  ASSERT_GT(app.require("table").property("contentY").toDouble(), 160) << "the row is still there";
  other.hide();
  app.window().requestActivate();
  ASSERT_TRUE(app.waitUntil([&] { return app.window().isActive(); }));
  app.settle();
  EXPECT_TRUE(focused().starts_with("abc-")) << focused();
  EXPECT_TRUE(app.window().activeFocusItem()->isVisible());
  const auto name = focused();
  app.press(Qt::Key_Return);
  app.settle();
  EXPECT_EQ(app.shown()->className(), "OneCampaignViewController") << name;
}

TEST_F(RowFocusTest, HomeAndEndLeadToTheEndsOfAList) {
  signIn();
  app.press(Qt::Key_End);
  app.settle();
  const auto& list = app.require("table");
  const double last = list.property("contentHeight").toDouble() - list.height();
  EXPECT_EQ(list.property("contentY").toDouble(), last);
  app.press(Qt::Key_Home);
  app.settle();
  EXPECT_EQ(list.property("contentY").toDouble(), 0);
}

TEST_F(RowFocusTest, ArrowsLeadFromTabToTabAndChooseNone) {
  signIn();
  app.require("browseTab").forceActiveFocus(Qt::TabFocusReason);
  for (const char* name : {"fundedTab", "mineTab", "newsTab"}) {
    app.press(Qt::Key_Right);
    EXPECT_TRUE(app.require(name).hasActiveFocus()) << name;
  }
  app.press(Qt::Key_Right);
  app.press(Qt::Key_Left);
  EXPECT_TRUE(app.require("mineTab").hasActiveFocus());
  app.settle();
  EXPECT_EQ(app.shown()->className(), "OtherCampaignsTableViewController");
}

// It leads back there as everywhere, or would if a way led back from the tabs.
TEST_F(RowFocusTest, WithAltAnArrowLeadsToNoOtherTab) {
  signIn();
  app.require("newsTab").forceActiveFocus(Qt::TabFocusReason);
  QTest::keyClick(&app.window(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_TRUE(app.require("newsTab").hasActiveFocus());
}

}  // namespace
}  // namespace leafund
