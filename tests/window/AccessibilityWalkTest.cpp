#include <QMap>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "model/Catalogue.h"
#include "tests/window/AccessibilityFixture.h"

// What a screen reader finds on every screen, in its order: role, name, value, description, states
// and actions. Read from the objects that the platform's bridge hands out, which takes two seconds
// and is the same with every version of the accessibility bus. Only tools/approve-walk renews the
// approved text, by setting LEAFUND_APPROVE.

namespace leafund {
namespace {

namespace fs = std::filesystem;

// Our words, since the bus and Qt rename theirs.
QString wordFor(QAccessible::Role role) {
  static const QMap<QAccessible::Role, QString> words = {
      {QAccessible::Button, "button"},
      {QAccessible::EditableText, "input"},
      {QAccessible::Graphic, "picture"},
      {QAccessible::Heading, "heading"},
      {QAccessible::List, "list"},
      {QAccessible::ListItem, "row"},
      {QAccessible::Notification, "message"},
      {QAccessible::PageTab, "tab"},
      {QAccessible::PageTabList, "tabs"},
      {QAccessible::ProgressBar, "progress"},
      {QAccessible::StaticText, "words"},
  };
  EXPECT_TRUE(words.contains(role)) << "role " << role;
  return words.value(role);
}

QString valueOf(QAccessibleInterface& item) {
  if (auto* range = item.valueInterface()) {
    return QStringLiteral(" = %1 of %2 to %3")
        .arg(range->currentValue().toInt())
        .arg(range->minimumValue().toInt())
        .arg(range->maximumValue().toInt());
  }
  if (item.role() != QAccessible::EditableText) return {};
  return " = \"" + item.text(QAccessible::Value) + '"';
}

QString statesOf(const QAccessible::State& state) {
  QStringList words;
  if (state.focused) words << "focused";
  if (state.focusable) words << "focusable";
  if (state.selected) words << "selected";
  if (state.selectable) words << "selectable";
  if (state.disabled) words << "disabled";
  if (state.editable) words << "editable";
  if (state.passwordEdit) words << "password";
  if (state.multiLine) words << "many lines";
  if (state.offscreen) words << "out of sight";
  return words.isEmpty() ? QString() : " (" + words.join(", ") + ')';
}

// Two inputs may be refused for the same reason: which one a message is about is its description.
std::string wholeNameOf(QAccessibleInterface& item) {
  return (wordFor(item.role()) + item.text(QAccessible::Name) + '\n' +
          item.text(QAccessible::Description))
      .toStdString();
}

QString lineOf(QAccessibleInterface& item) {
  QString line = wordFor(item.role()) + " \"" + item.text(QAccessible::Name) + '"' + valueOf(item);
  const QString description = item.text(QAccessible::Description);
  if (!description.isEmpty()) line += " described \"" + description + '"';
  line += statesOf(item.state());
  if (auto* actions = item.actionInterface(); actions && !actions->actionNames().isEmpty()) {
    line += " [" + actions->actionNames().join(", ") + ']';
  }
  return line;
}

class AccessibilityWalkTest : public AccessibilityTest {
 protected:
  void tell(const std::string& where) {
    app.settle();
    walk_ << "# " << where << "\n";
    std::set<std::string> met;
    tellBelow(*QAccessible::queryAccessibleInterface(&app.window()), 0, met);
    walk_ << "\n";
  }
  void goBack() {
    press("backButton");
    app.settle();
    auto* focus = QAccessible::queryAccessibleInterface(app.window().activeFocusItem());
    ASSERT_NE(focus, nullptr);
    walk_ << "Back, on: " << lineOf(*focus).toStdString() << "\n\n";
  }
  std::string told() const { return walk_.str(); }

 private:
  void tellBelow(QAccessibleInterface& parent, int depth, std::set<std::string>& met) {
    for (int i = 0; i < parent.childCount(); ++i) {
      auto* item = parent.child(i);
      ASSERT_NE(item, nullptr);
      if (item->state().invisible) continue;
      const auto line = lineOf(*item).toStdString();
      EXPECT_NE(item->text(QAccessible::Name), "") << line;
      EXPECT_TRUE(met.insert(wholeNameOf(*item)).second) << "twice: " << line;
      walk_ << std::string(2 * static_cast<std::size_t>(depth), ' ') << line << "\n";
      tellBelow(*item, depth + 1, met);
    }
  }

  std::ostringstream walk_;
};

void compare(const std::string& now) {
  const fs::path path = LEAFUND_WALK;
  if (std::getenv("LEAFUND_APPROVE") != nullptr) {
    std::ofstream(path) << now;
    return;
  }
  std::ifstream file(path);
  const std::string approved{std::istreambuf_iterator<char>(file), {}};
  EXPECT_EQ(now, approved) << "If this is how it should be: tools/approve-walk";
}

TEST_F(AccessibilityWalkTest, AReaderFindsOnEveryScreenWhatWasApproved) {
  tell("LandingPageVC");
  press("signInButton");
  tell("LandingPageVC, refused");
  press("signUpButton");
  tell("SignUpVC");
  goBack();
  signIn();
  tell("TabBarVC with OtherCampaignsTableViewController");
  press("Vegetarian for PETA", QAccessible::ListItem);
  tell("OneCampaignViewController");
  enter("dollarAmountField", "81");
  press("FundButton");
  tell("OneCampaignViewController, refused");
  goBack();
  press("fundedTab", QAccessible::PageTab);
  tell("TabBarVC with FundCampaignVC");
  press(QString::fromStdString(campaignsIFunded()[0]->title()), QAccessible::ListItem);
  tell("OneCampaignViewController, funded");
  press("campaignUpdates");
  tell("UpdatePageVC");
  goBack();
  goBack();
  press("newsTab", QAccessible::PageTab);
  tell("TabBarVC with NewsFeedVC");
  press("mineTab", QAccessible::PageTab);
  tell("TabBarVC with MyProfileVC");
  press("newButton");
  tell("NewCampaignVC");
  press("createButton");
  tell("NewCampaignVC, refused");
  goBack();
  press("browseTab", QAccessible::PageTab);
  press("Biking to Work!", QAccessible::ListItem);
  enter("dollarAmountField", "1");
  press("FundButton");
  tell("ConfirmPageVC");
  press("yesButton");
  tell("ThankYouVC");
  compare(told());
}

}  // namespace
}  // namespace leafund
