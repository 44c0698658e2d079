#include "tests/window/KeyboardFixture.h"

namespace leafund {
namespace {

// F6 and Ctrl+Tab lead from pane to pane: the bar, the page, the tabs.
class PanesTest : public KeyboardTest {
 protected:
  std::string after(Qt::Key pressed, Qt::KeyboardModifiers modifiers = {}) {
    key(pressed, modifiers);
    return focusedName();
  }
};

TEST_F(PanesTest, F6LeadsFromTheBarToThePageToTheTabsAndRound) {
  signIn();
  click("mineTab");
  tabTo("newButton");
  EXPECT_EQ(after(Qt::Key_F6), "MyCampaigns-0");
  EXPECT_EQ(after(Qt::Key_F6), "mineTab");
  EXPECT_EQ(after(Qt::Key_F6), "newButton");
  EXPECT_EQ(after(Qt::Key_F6, Qt::ShiftModifier), "mineTab");
  EXPECT_EQ(after(Qt::Key_F6, Qt::ShiftModifier), "MyCampaigns-0");
}

TEST_F(PanesTest, CtrlTabDoesToo) {
  signIn();
  click("mineTab");
  tabTo("newButton");
  EXPECT_EQ(after(Qt::Key_Tab, Qt::ControlModifier), "MyCampaigns-0");
  EXPECT_EQ(after(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier), "newButton");
}

TEST_F(PanesTest, FromWithinAnInputToo) {
  signIn();
  click("mineTab");
  click("newButton");
  for (const auto* name : {"nameOfCreator", "shortDescription"}) {
    tabTo(name);
    EXPECT_EQ(after(Qt::Key_Tab, Qt::ControlModifier), "backButton");
    EXPECT_EQ(app.application->firstResponder(), nullptr);
    EXPECT_EQ(shownWords("shortDescription"), "");
  }
}

TEST_F(PanesTest, APaneWithNothingToReachIsPassedOver) {
  signIn();
  key(Qt::Key_Tab);
  EXPECT_EQ(after(Qt::Key_F6), "browseTab");
  EXPECT_EQ(after(Qt::Key_F6), "abc-0");
  EXPECT_EQ(after(Qt::Key_F6, Qt::ShiftModifier), "browseTab");
}

// A ring is round what is pressed or typed into, and never round a pane of such things.
TEST_F(PanesTest, NoRingIsRoundWhatHoldsOtherControls) {
  const auto expectOneEach = [this] {
    for (int i = 0; i < 14; ++i) {
      key(i % 5 == 4 ? Qt::Key_F6 : Qt::Key_Tab);
      for (const auto* ring : app.page()->findChildren<QQuickItem*>()) {
        const bool isRing = QByteArray(ring->metaObject()->className()).startsWith("FocusRing");
        if (!isRing || !ring->isVisible()) continue;
        const auto* target = ring->property("target").value<QQuickItem*>();
        int held = 0;
        for (const auto* each : target->findChildren<QQuickItem*>()) {
          held += each->isVisible() && each->activeFocusOnTab();
        }
        EXPECT_LE(held, 0) << target->metaObject()->className() << " holds others";
      }
    }
  };
  expectOneEach();
  signIn();
  for (const auto* tab : {"browseTab", "mineTab", "newsTab"}) {
    click(tab);
    expectOneEach();
  }
}

}  // namespace
}  // namespace leafund
