#include <QAccessible>

#include "model/Catalogue.h"
#include "platform/uikit/UITableView.h"
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
  EXPECT_EQ(access->text(QAccessible::Name).toStdString(),
            app.shown()->view()->accessibilityLabel());
  EXPECT_NE(access->text(QAccessible::Name), "");
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
  key(Qt::Key_F6);
  ASSERT_EQ(focusedName(), "newButton");
  key(Qt::Key_F6);
  EXPECT_EQ(focusedName(), "MyCampaigns-0");
}

TEST_F(EmptyListTest, AListWithoutRowsSaysSoAndWhatToDoAndIsQuietOnceItHasOne) {
  otherCampaigns().clear();
  signIn();
  const auto words = [this](QAccessible::Role role) {
    QStringList found;
    std::vector<QQuickItem*> waiting{app.page()};
    while (!waiting.empty()) {
      auto* item = waiting.back();
      waiting.pop_back();
      if (!item->isVisible()) continue;
      auto* access = QAccessible::queryAccessibleInterface(item);
      if (access != nullptr && access->role() == role) found << access->text(QAccessible::Name);
      for (auto* child : item->childItems()) waiting.push_back(child);
    }
    return found;
  };
  const auto& said = dynamic_cast<const UITableView&>(*app.shown()->view()).emptyWords();
  const auto heading = QString::fromStdString(said.heading);
  EXPECT_TRUE(words(QAccessible::Heading).contains(heading));
  EXPECT_TRUE(words(QAccessible::StaticText).contains(QString::fromStdString(said.sentence)));
  otherCampaigns().push_back(campaignsIFunded()[0]);
  click("newsTab");
  click("browseTab");
  EXPECT_FALSE(words(QAccessible::Heading).contains(heading));
}

}  // namespace
}  // namespace leafund
