#include <QTest>

#include "model/Catalogue.h"
#include "tests/window/AccessibilityFixture.h"

namespace leafund {
namespace {

// Where a screen reader stands when a screen has come or come back.
class AccessibilityFocusTest : public AccessibilityTest {
 protected:
  void openUpdateOfFirstFunded() {
    press("Funded", QAccessible::PageTab);
    press(QString::fromStdString(campaignsIFunded()[0]->title()), QAccessible::ListItem);
    press("Read the update");
  }
  void click(const std::string& name) {
    app.click(app.require(name));
    app.settle();
  }
  void key(Qt::Key key) {
    app.press(key);
    app.settle();
  }
  void resizeTo(int height) {
    app.window().resize(390, height);
    ASSERT_TRUE(app.waitUntil([&] { return app.page()->height() == height; }));
    app.settle();
  }
  double contentY(QQuickItem* inPane) {
    while (!inPane->inherits("QQuickFlickable")) inPane = inPane->parentItem();
    return inPane->property("contentY").toDouble();
  }

  void expectFocusOn(QAccessible::Role role, const std::string& name) {
    app.settle();
    auto* focus = QAccessible::queryAccessibleInterface(app.window().activeFocusItem());
    ASSERT_NE(focus, nullptr) << name;
    EXPECT_EQ(focus->text(QAccessible::Name).toStdString(), name);
    EXPECT_EQ(focus->role(), role) << name;
    EXPECT_TRUE(focus->state().focused && focus->state().focusable) << name;
  }
  void expectFocusOnHeading(const std::string& name) {
    expectFocusOn(QAccessible::Heading, name);
    int focused = 0;
    for (auto* each : shown()) focused += each->state().focused ? 1 : 0;
    EXPECT_EQ(focused, 1) << name;
  }
};

TEST_F(AccessibilityFocusTest, ANewScreenPutsTheReaderOnItsHeading) {
  expectFocusOnHeading("Leafund");
  press("Create an account");
  expectFocusOnHeading("Create an account");
  press("Back");
  signIn();
  expectFocusOnHeading("Browse");
  press("Mine", QAccessible::PageTab);
  press("New");
  expectFocusOnHeading("New campaign");
  press("Back");
  openUpdateOfFirstFunded();
  expectFocusOnHeading("Update");
  press("Back");
  press("Back");
  press("Browse", QAccessible::PageTab);
  press("Vegetarian for PETA", QAccessible::ListItem);
  expectFocusOnHeading("Campaign");
  enter("Amount in dollars", "1");
  press("Fund this campaign");
  expectFocusOnHeading("Confirm your pledge");
  press("Yes");
  expectFocusOnHeading("Thank you for your pledge!");
}

TEST_F(AccessibilityFocusTest, AScreenThatWasMadeAheadPutsTheReaderOnItsHeadingToo) {
  const auto ready = [&](const char* screen) {
    return app.waitUntil([&] {
      const auto* content = app.window().contentItem();
      return content->findChild<QQuickItem*>(screen, Qt::FindDirectChildrenOnly) != nullptr;
    });
  };
  signIn();
  ASSERT_TRUE(ready("OneCampaignViewController"));
  press("Vegetarian for PETA", QAccessible::ListItem);
  expectFocusOnHeading("Campaign");
  ASSERT_TRUE(ready("ConfirmPageVC"));
  enter("Amount in dollars", "1");
  press("Fund this campaign");
  expectFocusOnHeading("Confirm your pledge");
  ASSERT_TRUE(ready("ThankYouVC"));
  press("Yes");
  expectFocusOnHeading("Thank you for your pledge!");
}

TEST_F(AccessibilityFocusTest, GoingBackPutsTheReaderOnTheControlItLeftFrom) {
  press("Create an account");
  press("Back");
  expectFocusOn(QAccessible::Button, "Create an account");
  signIn();
  press("Mine", QAccessible::PageTab);
  press("New");
  press("Back");
  expectFocusOn(QAccessible::Button, "New");
  openUpdateOfFirstFunded();
  press("Back");
  expectFocusOn(QAccessible::Button, "Read the update");
  press("Back");
  expectFocusOn(QAccessible::ListItem, campaignsIFunded()[0]->title());
}

TEST_F(AccessibilityFocusTest, AfterLeavingByAClickTheReaderComesBackToWhatWasClicked) {
  click("signUpButton");
  key(Qt::Key_Escape);
  expectFocusOn(QAccessible::Button, "Create an account");
  signIn();
  click("abc-1");
  expectFocusOnHeading("Campaign");
  key(Qt::Key_Escape);
  expectFocusOn(QAccessible::ListItem, "Biking to Work!");
}

TEST_F(AccessibilityFocusTest, TheReaderStaysOnTheTabItChooses) {
  signIn();
  press("Funded", QAccessible::PageTab);
  expectFocusOn(QAccessible::PageTab, "Funded");
}

TEST_F(AccessibilityFocusTest, NothingScrollsForAFocusThatComesBack) {
  signIn();
  press("Vegetarian for PETA", QAccessible::ListItem);
  resizeTo(300);
  enter("Amount in dollars", "1");
  key(Qt::Key_Tab);
  auto* button = &app.require("FundButton");
  ASSERT_EQ(app.window().activeFocusItem(), button);
  ASSERT_GT(contentY(button), 0);
  for (int i = 0; i < 9; ++i) key(Qt::Key_Up);
  ASSERT_EQ(contentY(button), 0) << "the button with the focus is scrolled out of sight";
  key(Qt::Key_Return);
  expectFocusOnHeading("Confirm your pledge");
  press("No");
  expectFocusOn(QAccessible::Button, "Fund this campaign");
  EXPECT_EQ(contentY(button), 0);
}

TEST_F(AccessibilityFocusTest, TheKeysThatScrollWorkFromTheHeading) {
  signIn();
  key(Qt::Key_PageDown);
  EXPECT_GT(contentY(&app.require("table")), 0);
  expectFocusOnHeading("Browse");
  key(Qt::Key_PageUp);
  EXPECT_EQ(contentY(&app.require("table")), 0);
  press("Vegetarian for PETA", QAccessible::ListItem);
  resizeTo(568);
  key(Qt::Key_Down);
  EXPECT_GT(contentY(&app.require("campaignTitle")), 0);
  key(Qt::Key_Up);
  EXPECT_EQ(contentY(&app.require("campaignTitle")), 0);
  key(Qt::Key_Escape);
}

TEST_F(AccessibilityFocusTest, TheKeysThatScrollWorkFromATab) {
  signIn();
  press("News", QAccessible::PageTab);
  resizeTo(568);
  key(Qt::Key_PageDown);
  EXPECT_GT(contentY(&app.require("rideStoryTitle")), 0);
}

}  // namespace
}  // namespace leafund
