#include <gtest/gtest.h>

#include <QAccessible>

#include "model/Catalogue.h"
#include "tests/window/WindowApplication.h"

namespace leafund {
namespace {

// What assistive technology meets: the tree of what is shown.
class AccessibilityTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { QAccessible::setActive(true); }

  static void collect(QAccessibleInterface* root, std::vector<QAccessibleInterface*>& shown) {
    for (int i = 0; i < root->childCount(); ++i) {
      auto* child = root->child(i);
      if (child == nullptr || child->state().invisible) continue;
      shown.push_back(child);
      collect(child, shown);
    }
  }
  std::vector<QAccessibleInterface*> shown() {
    app.settle();
    std::vector<QAccessibleInterface*> all;
    collect(QAccessible::queryAccessibleInterface(&app.window()), all);
    return all;
  }
  QAccessibleInterface* named(const QString& name, QAccessible::Role role) {
    for (auto* each : shown()) {
      if (each->role() == role && each->text(QAccessible::Name).startsWith(name)) return each;
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
  // Focus over the bus, text by keys: that is how it goes in.
  void enter(const QString& name, const std::string& text) {
    auto* input = named(name, QAccessible::EditableText);
    ASSERT_NE(input, nullptr);
    input->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    app.typeKeys(text);
  }

  WindowApplication app;
};

TEST_F(AccessibilityTest, ThePledgeRoadCanBeGoneByRolesNamesAndPressesAlone) {
  enter("E-mail", "wren@example.org");
  enter("Password", "secret");
  press("Sign in");
  press("Vegetarian for PETA", QAccessible::ListItem);
  enter("Amount in dollars", "80");
  press("Fund this campaign");
  press("Yes");
  EXPECT_NE(named("Thank you for your pledge!", QAccessible::Heading), nullptr);
  press("Home");
  press("Funded", QAccessible::PageTab);
  EXPECT_NE(named("Vegetarian for PETA", QAccessible::ListItem), nullptr);
  EXPECT_EQ(campaignsIFunded()[0]->currFunding(), 200.0F);
}

TEST_F(AccessibilityTest, EveryControlOfEveryScreenHasARoleAndAName) {
  const auto check = [&](const char* screen) {
    int controls = 0;
    for (auto* each : shown()) {
      if (!each->state().focusable) continue;
      ++controls;
      EXPECT_NE(each->role(), QAccessible::NoRole) << screen;
      EXPECT_FALSE(each->text(QAccessible::Name).isEmpty())
          << screen << ": " << each->object()->objectName().toStdString();
    }
    EXPECT_GT(controls, 0) << screen;
  };
  check("landing");
  press("Create an account");
  check("sign-up");
  press("Back");
  enter("E-mail", "a");
  enter("Password", "b");
  press("Sign in");
  check("browse");
  for (const auto* tab : {"Funded", "News", "Mine"}) {
    press(tab, QAccessible::PageTab);
    check(tab);
  }
  press("New");
  check("new campaign");
  press("Back");
  press("Browse", QAccessible::PageTab);
  press("Biking to Work!", QAccessible::ListItem);
  check("campaign");
  enter("Amount in dollars", "1");
  press("Fund this campaign");
  check("confirm");
  press("Yes");
  check("thanks");
}

TEST_F(AccessibilityTest, APasswordIsToldFromOtherTextsSoThatReadersDoNotSpeakIt) {
  enter("Password", "secret");
  auto* password = named("Password", QAccessible::EditableText);
  ASSERT_NE(password, nullptr);
  EXPECT_TRUE(password->state().passwordEdit);
}

}  // namespace
}  // namespace leafund
