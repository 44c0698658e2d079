#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <string>
#include <vector>

#include "tests/window/WindowApplication.h"

namespace leafund {

// What assistive technology meets: the tree of what is shown.
class AccessibilityTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { QAccessible::setActive(true); }

  static void collect(QAccessibleInterface* root, std::vector<QAccessibleInterface*>& all) {
    for (int i = 0; i < root->childCount(); ++i) {
      auto* child = root->child(i);
      if (child == nullptr) continue;
      all.push_back(child);
      collect(child, all);
    }
  }
  // Also what is hidden, which a curious program can see.
  std::vector<QAccessibleInterface*> everything() {
    app.settle();
    std::vector<QAccessibleInterface*> all;
    collect(QAccessible::queryAccessibleInterface(&app.window()), all);
    return all;
  }
  std::vector<QAccessibleInterface*> shown() {
    auto all = everything();
    std::erase_if(all, [](auto* each) { return each->state().invisible; });
    return all;
  }
  QStringList notifications() {
    QStringList messages;
    for (auto* each : shown()) {
      if (each->role() == QAccessible::Notification) messages << each->text(QAccessible::Name);
    }
    return messages;
  }
  // By its name in the scene; what logic names, such as a row, by what it reads.
  QAccessibleInterface* named(const QString& name, QAccessible::Role role) {
    for (auto* each : shown()) {
      if (each->role() != role) continue;
      if (each->object()->objectName() == name || each->text(QAccessible::Name) == name)
        return each;
    }
    ADD_FAILURE() << "nothing is called " << name.toStdString();
    return nullptr;
  }
  void press(const QString& name, QAccessible::Role role = QAccessible::Button) {
    auto* control = named(name, role);
    ASSERT_NE(control, nullptr);
    ASSERT_NE(control->actionInterface(), nullptr) << name.toStdString();
    control->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  }
  std::string focusedName() {
    app.settle();
    auto* focus = QAccessible::queryAccessibleInterface(app.window().activeFocusItem());
    return focus ? focus->text(QAccessible::Name).toStdString() : "";
  }
  // The focus is on what `named` finds.
  void expectFocusOn(const QString& name, QAccessible::Role role) {
    app.settle();
    auto* focus = QAccessible::queryAccessibleInterface(app.window().activeFocusItem());
    ASSERT_NE(focus, nullptr) << name.toStdString();
    EXPECT_EQ(focus, named(name, role));
    EXPECT_TRUE(focus->state().focused && focus->state().focusable) << name.toStdString();
  }
  // Focus over the bus, text by keys: that is how it goes in.
  void enter(const QString& name, const std::string& text) {
    auto* input = named(name, QAccessible::EditableText);
    ASSERT_NE(input, nullptr);
    input->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    app.typeKeys(text);
  }
  void signIn() {
    enter("userEmail", "wren");
    enter("password", "secret");
    press("signInButton");
  }

  WindowApplication app;
};

}  // namespace leafund
