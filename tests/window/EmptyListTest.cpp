#include <QAccessible>

#include "model/Catalogue.h"
#include "tests/window/KeyboardFixture.h"

namespace leafund {
namespace {

class EmptyListTest : public KeyboardTest {};

TEST_F(EmptyListTest, TheKeyboardIsSeenToStandOnAListWithoutRowsAndComesBackToIt) {
  otherCampaigns().clear();
  typeAt("userEmail", "wren@example.org");
  typeAt("password", "secret");
  pressAt("signInButton");
  tabTo("table");  // which also looks for the ring around what is in focus
  auto* access = QAccessible::queryAccessibleInterface(focused());
  ASSERT_NE(access, nullptr);
  EXPECT_EQ(access->role(), QAccessible::List);
  EXPECT_EQ(access->text(QAccessible::Name), "Campaigns");
  key(Qt::Key_Tab);
  EXPECT_NE(focusedName(), "table");
  tabTo("table");
}

TEST_F(EmptyListTest, AListThatGetsItsFirstRowGivesTheFocusToIt) {
  myUnfundedCampaigns().clear();
  signIn();
  click("mineTab");
  tabTo("table");
  myUnfundedCampaigns().push_back(otherCampaigns()[0]);
  pressAt("browseTab");
  pressAt("mineTab");
  EXPECT_FALSE(app.require("table").property("activeFocusOnTab").toBool());
}

}  // namespace
}  // namespace leafund
