#include "tests/window/KeyboardFixture.h"

namespace leafund {
namespace {

class KeyboardRingTest : public KeyboardTest {
 protected:
  int rings() {
    int visible = 0;
    for (const auto* item : app.page()->findChildren<QQuickItem*>()) {
      const bool isRing = QByteArray(item->metaObject()->className()).startsWith("FocusRing");
      visible += isRing && item->isVisible();
    }
    return visible;
  }
};

TEST_F(KeyboardRingTest, NothingButTheControlInFocusHasARing) {
  for (int step = 0; step < 6; ++step) {
    key(Qt::Key_Tab);
    EXPECT_LE(rings(), 1) << focusedName();
  }
}

TEST_F(KeyboardRingTest, AControlThatIsClickedHasNone) {
  signIn();
  click("fundedTab");
  EXPECT_EQ(focusedName(), "fundedTab");
  EXPECT_EQ(rings(), 0);
  key(Qt::Key_Tab);
  EXPECT_EQ(rings(), 1);
}

}  // namespace
}  // namespace leafund
