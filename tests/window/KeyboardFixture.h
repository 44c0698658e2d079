#pragma once

#include <string>
#include <vector>

#include "tests/window/WindowFixture.h"

namespace leafund {

// The application used by keys alone. At every step the focus must be on something that is seen,
// and must itself be seen.
class KeyboardTest : public WindowTest {
 protected:
  QQuickItem* focused() { return app.window().activeFocusItem(); }
  std::string focusedName() { return focused() ? focused()->objectName().toStdString() : ""; }

  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    app.press(key, modifiers);
    app.settle();
    expectFocusSeen();
  }

  // Goes on by Tab until the item of that name has the focus.
  void tabTo(const std::string& name) {
    for (int i = 0; i < kMostSteps; ++i) {
      if (focusedName() == name) return;
      key(Qt::Key_Tab);
    }
    ADD_FAILURE() << name << " is not reached by Tab";
  }
  void pressAt(const std::string& name, Qt::Key key = Qt::Key_Return) {
    tabTo(name);
    KeyboardTest::key(key);
  }
  void typeAt(const std::string& name, const std::string& text) {
    tabTo(name);
    app.typeKeys(text);
    app.settle();
  }
  // The names from the focus on, until the round is complete.
  std::vector<std::string> round(Qt::Key step = Qt::Key_Tab) {
    std::vector<std::string> names;
    for (int i = 0; i < kMostSteps; ++i) {
      key(step);
      if (!names.empty() && focusedName() == names.front()) break;
      names.push_back(focusedName());
    }
    return names;
  }

  void expectFocusSeen() {
    auto* item = focused();
    ASSERT_NE(item, nullptr);
    EXPECT_TRUE(item->isVisible()) << item->objectName().toStdString();
    EXPECT_TRUE(app.page()->isAncestorOf(item)) << "the focus is on another screen";
    EXPECT_TRUE(marked(*item)) << app.shown()->className() << ": the focus on "
                               << item->metaObject()->className() << " '"
                               << item->objectName().toStdString() << "' is not to be seen";
  }

 private:
  static constexpr int kMostSteps = 40;

  // By a ring around it, or by the border of the box that an input stands in.
  bool marked(const QQuickItem& item) {
    for (const auto* each = &item; each != nullptr; each = each->parentItem()) {
      if (each->property("userIsIn").toBool()) return true;
    }
    for (const auto* ring : app.page()->findChildren<QQuickItem*>()) {
      const bool isRing = QByteArray(ring->metaObject()->className()).startsWith("FocusRing");
      if (isRing && ring->isVisible() && ring->property("target").value<QQuickItem*>() == &item) {
        return true;
      }
    }
    return false;
  }
};

}  // namespace leafund
