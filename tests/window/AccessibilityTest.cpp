#include "model/Catalogue.h"
#include "tests/window/AccessibilityFixture.h"

namespace leafund {
namespace {

TEST_F(AccessibilityTest, ThePledgeRoadCanBeGoneByRolesNamesAndPressesAlone) {
  enter("userEmail", "wren@example.org");
  enter("password", "secret");
  press("signInButton");
  press("Vegetarian for PETA", QAccessible::ListItem);
  enter("dollarAmountField", "80");
  press("FundButton");
  press("yesButton");
  EXPECT_NE(named("thankYouLabel", QAccessible::Heading), nullptr);
  press("homeButton");
  press("fundedTab", QAccessible::PageTab);
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
    // Where a reader is put when the screen comes.
    EXPECT_NE(focusedName(), "") << screen;
  };
  check("landing");
  expectFocusOn("brand", QAccessible::Heading);
  press("signUpButton");
  check("sign-up");
  press("backButton");
  enter("userEmail", "a");
  enter("password", "b");
  press("signInButton");
  check("browse");
  for (const auto* tab : {"fundedTab", "newsTab", "mineTab"}) {
    press(tab, QAccessible::PageTab);
    check(tab);
  }
  press("newButton");
  check("new campaign");
  press("backButton");
  press("fundedTab", QAccessible::PageTab);
  press(QString::fromStdString(campaignsIFunded()[0]->title()), QAccessible::ListItem);
  press("campaignUpdates");
  check("update");
  press("backButton");
  press("backButton");
  press("browseTab", QAccessible::PageTab);
  press("Biking to Work!", QAccessible::ListItem);
  check("campaign");
  enter("dollarAmountField", "1");
  press("FundButton");
  check("confirm");
  press("yesButton");
  check("thanks");
  expectFocusOn("thankYouLabel", QAccessible::Heading);
}

TEST_F(AccessibilityTest, APasswordKeepsItsNameAndIsNowhereReadInClear) {
  enter("password", "secret");
  auto* password = named("password", QAccessible::EditableText);
  ASSERT_NE(password, nullptr);
  EXPECT_TRUE(password->state().passwordEdit);
  const QString dots(6, QChar(0x2022));
  EXPECT_EQ(password->text(QAccessible::Value), dots);
  EXPECT_EQ(password->textInterface()->text(0, 6), dots);
  EXPECT_EQ(password->textInterface()->characterCount(), 6);
  int start = 0, end = 0;
  EXPECT_EQ(password->textInterface()
                ->textAtOffset(2, QAccessible::WordBoundary, &start, &end)
                .contains("secret"),
            false);
  for (auto* each : everything()) {
    for (const auto kind : {QAccessible::Name, QAccessible::Description, QAccessible::Value}) {
      EXPECT_FALSE(each->text(kind).contains("secret")) << each->role();
    }
  }
}

TEST_F(AccessibilityTest, WhatAssistiveTechnologyWritesReachesTheApplication) {
  auto* email = named("userEmail", QAccessible::EditableText);
  email->editableTextInterface()->replaceText(0, 0, "wrn@example.org");
  email->editableTextInterface()->insertText(2, "e");
  email->editableTextInterface()->deleteText(4, 12);
  EXPECT_EQ(email->textInterface()->text(0, email->textInterface()->characterCount()), "wren.org");
  named("password", QAccessible::EditableText)->setText(QAccessible::Value, "secret");
  press("signInButton");
  EXPECT_EQ(app.shown()->className(), "OtherCampaignsTableViewController");
}

TEST_F(AccessibilityTest, WritingOverAMessageReplacesAllOfIt) {
  press("signUpButton");
  press("signUpButton");
  auto* name = named("nameField", QAccessible::EditableText);
  EXPECT_EQ(name->text(QAccessible::Value), "Error: Please Enter a Name");
  name->setText(QAccessible::Value, "Wren");
  app.settle();
  EXPECT_EQ(name->text(QAccessible::Value), "Wren");
  EXPECT_EQ(name->textInterface()->selectionCount(), 0);
}

TEST_F(AccessibilityTest, AHiddenScreenTakesNoTextAndNoFocus) {
  auto* email = named("userEmail", QAccessible::EditableText);
  press("signUpButton");
  app.settle();
  email->setText(QAccessible::Value, "wren");
  email->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_EQ(email->text(QAccessible::Value), "");
  EXPECT_FALSE(email->state().focused);
  EXPECT_TRUE(email->rect().isEmpty());
}

TEST_F(AccessibilityTest, AnInputTellsWhereItsCharactersAreAndWhatIsSelected) {
  enter("userEmail", "wren");
  auto* text = named("userEmail", QAccessible::EditableText)->textInterface();
  EXPECT_EQ(text->cursorPosition(), 4);
  text->setCursorPosition(1);
  EXPECT_EQ(text->cursorPosition(), 1);
  text->addSelection(1, 3);
  int start = 0, end = 0;
  text->selection(0, &start, &end);
  EXPECT_EQ(std::pair(start, end), std::pair(1, 3));
  text->removeSelection(0);
  EXPECT_EQ(text->selectionCount(), 0);
  const QRect letter = text->characterRect(2);
  EXPECT_TRUE(named("userEmail", QAccessible::EditableText)->rect().contains(letter.center()));
  EXPECT_EQ(text->offsetAtPoint(letter.center()), 2);
  EXPECT_EQ(text->offsetAtPoint({-5, -5}), -1);
}

TEST_F(AccessibilityTest, ProgressHasAValueBetweenTwoOthers) {
  enter("userEmail", "wren");
  enter("password", "secret");
  press("signInButton");
  press("Vegetarian for PETA", QAccessible::ListItem);
  auto* bar = named("slider", QAccessible::ProgressBar);
  ASSERT_NE(bar, nullptr);
  ASSERT_NE(bar->valueInterface(), nullptr);
  EXPECT_EQ(bar->valueInterface()->currentValue().toInt(), 60);
  EXPECT_EQ(bar->valueInterface()->minimumValue().toInt(), 0);
  EXPECT_EQ(bar->valueInterface()->maximumValue().toInt(), 100);
  bar->valueInterface()->setCurrentValue(100);
  EXPECT_EQ(bar->valueInterface()->currentValue().toInt(), 60);
  EXPECT_NE(bar->parent(), nullptr);
}

TEST_F(AccessibilityTest, AMessageIsANotificationAsLongAsItIsThere) {
  EXPECT_EQ(notifications(), QStringList());
  press("signInButton");
  EXPECT_EQ(notifications(),
            QStringList({"Error: Please Enter a Name", "Error: Please Enter a Password"}));
  enter("userEmail", "wren");
  EXPECT_EQ(notifications(), QStringList("Error: Please Enter a Password"));
  enter("password", "secret");
  EXPECT_EQ(notifications(), QStringList());
  press("signInButton");
  press("Vegetarian for PETA", QAccessible::ListItem);
  enter("dollarAmountField", "81");
  press("FundButton");
  EXPECT_EQ(notifications(), QStringList("Error: Donation Exceeds Maximum"));
}

TEST_F(AccessibilityTest, AListIsTurnedByThePage) {
  enter("userEmail", "wren");
  enter("password", "secret");
  press("signInButton");
  auto* list = named("table", QAccessible::List);
  list->actionInterface()->doAction(QAccessibleActionInterface::nextPageAction());
  EXPECT_NE(named("Organic Only!", QAccessible::ListItem), nullptr);
  list->actionInterface()->doAction(QAccessibleActionInterface::previousPageAction());
  EXPECT_NE(named("Vegetarian for PETA", QAccessible::ListItem), nullptr);
}

}  // namespace
}  // namespace leafund
