#include <QTest>

#include "model/Catalogue.h"
#include "tests/window/AccessibilityFixture.h"

namespace leafund {
namespace {

// Where a screen reader stands when a screen has come or come back.
class AccessibilityFocusTest : public AccessibilityTest {
 protected:
  void openUpdateOfFirstFunded() {
    press("fundedTab", QAccessible::PageTab);
    press(QString::fromStdString(campaignsIFunded()[0]->title()), QAccessible::ListItem);
    press("campaignUpdates");
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

  // A screen with a bar has its heading there.
  void expectFocusOnHeading(const std::string& screen, const QString& heading = "barTitle") {
    EXPECT_EQ(app.shown()->className(), screen);
    expectFocusOn(heading, QAccessible::Heading);
    int focused = 0;
    for (auto* each : shown()) focused += each->state().focused ? 1 : 0;
    EXPECT_EQ(focused, 1) << screen;
  }
};

TEST_F(AccessibilityFocusTest, ANewScreenPutsTheReaderOnItsHeading) {
  expectFocusOnHeading("LandingPageVC", "brand");
  press("signUpButton");
  expectFocusOnHeading("SignUpVC");
  press("backButton");
  signIn();
  expectFocusOnHeading("OtherCampaignsTableViewController");
  press("mineTab", QAccessible::PageTab);
  press("newButton");
  expectFocusOnHeading("NewCampaignVC");
  press("backButton");
  openUpdateOfFirstFunded();
  expectFocusOnHeading("UpdatePageVC");
  press("backButton");
  press("backButton");
  press("browseTab", QAccessible::PageTab);
  press("Vegetarian for PETA", QAccessible::ListItem);
  expectFocusOnHeading("OneCampaignViewController");
  enter("dollarAmountField", "1");
  press("FundButton");
  expectFocusOnHeading("ConfirmPageVC");
  press("yesButton");
  expectFocusOnHeading("ThankYouVC", "thankYouLabel");
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
  expectFocusOnHeading("OneCampaignViewController");
  ASSERT_TRUE(ready("ConfirmPageVC"));
  enter("dollarAmountField", "1");
  press("FundButton");
  expectFocusOnHeading("ConfirmPageVC");
  ASSERT_TRUE(ready("ThankYouVC"));
  press("yesButton");
  expectFocusOnHeading("ThankYouVC", "thankYouLabel");
}

TEST_F(AccessibilityFocusTest, GoingBackPutsTheReaderOnTheControlItLeftFrom) {
  press("signUpButton");
  press("backButton");
  expectFocusOn("signUpButton", QAccessible::Button);
  signIn();
  press("mineTab", QAccessible::PageTab);
  press("newButton");
  press("backButton");
  expectFocusOn("newButton", QAccessible::Button);
  openUpdateOfFirstFunded();
  press("backButton");
  expectFocusOn("campaignUpdates", QAccessible::Button);
  press("backButton");
  expectFocusOn(QString::fromStdString(campaignsIFunded()[0]->title()), QAccessible::ListItem);
}

TEST_F(AccessibilityFocusTest, AfterLeavingByAClickTheReaderComesBackToWhatWasClicked) {
  click("signUpButton");
  key(Qt::Key_Escape);
  expectFocusOn("signUpButton", QAccessible::Button);
  signIn();
  click("abc-1");
  expectFocusOnHeading("OneCampaignViewController");
  key(Qt::Key_Escape);
  expectFocusOn("Biking to Work!", QAccessible::ListItem);
}

TEST_F(AccessibilityFocusTest, TheReaderStaysOnTheTabItChooses) {
  signIn();
  press("fundedTab", QAccessible::PageTab);
  expectFocusOn("fundedTab", QAccessible::PageTab);
}

TEST_F(AccessibilityFocusTest, NothingScrollsForAFocusThatComesBack) {
  signIn();
  press("Vegetarian for PETA", QAccessible::ListItem);
  resizeTo(300);
  enter("dollarAmountField", "1");
  key(Qt::Key_Tab);
  auto* button = &app.require("FundButton");
  ASSERT_EQ(app.window().activeFocusItem(), button);
  ASSERT_GT(contentY(button), 0);
  for (int i = 0; i < 9; ++i) key(Qt::Key_Up);
  ASSERT_EQ(contentY(button), 0) << "the button with the focus is scrolled out of sight";
  key(Qt::Key_Return);
  expectFocusOnHeading("ConfirmPageVC");
  press("noButton");
  expectFocusOn("FundButton", QAccessible::Button);
  EXPECT_EQ(contentY(button), 0);
}

TEST_F(AccessibilityFocusTest, TheKeysThatScrollWorkFromTheHeading) {
  signIn();
  key(Qt::Key_PageDown);
  EXPECT_GT(contentY(&app.require("table")), 0);
  expectFocusOnHeading("OtherCampaignsTableViewController");
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
  press("newsTab", QAccessible::PageTab);
  resizeTo(568);
  key(Qt::Key_PageDown);
  EXPECT_GT(contentY(&app.require("rideStoryTitle")), 0);
}

}  // namespace
}  // namespace leafund
