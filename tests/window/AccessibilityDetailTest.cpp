#include <QQmlComponent>
#include <QQmlEngine>

#include "interface/qml/bridge/TextBridge.h"
#include "model/Catalogue.h"
#include "tests/window/AccessibilityFixture.h"

namespace leafund {
namespace {

// What a screen reader is told of single items: words, actions, extents and descriptions.
class AccessibilityDetailTest : public AccessibilityTest {
 protected:
  void openForm() {
    signIn();
    press("mineTab", QAccessible::PageTab);
    press("newButton");
  }
  void openUpdateOfFirstFunded() {
    signIn();
    press("fundedTab", QAccessible::PageTab);
    press(QString::fromStdString(campaignsIFunded()[0]->title()), QAccessible::ListItem);
    press("campaignUpdates");
  }
  std::string description(const QString& field) {
    return named(field, QAccessible::EditableText)->text(QAccessible::Description).toStdString();
  }
  // Both in pixels of the screen.
  static void expectSameArea(const QRect& told, const QQuickItem& item) {
    const QRectF seen = item.mapRectToScene(item.boundingRect());
    const QPoint corner = item.window()->mapToGlobal(seen.topLeft().toPoint());
    EXPECT_EQ(told, QRect(corner, seen.size().toSize()));
  }
};

TEST_F(AccessibilityDetailTest, ALabelWithoutTextIsNotRead) {
  for (auto set : {&CampaignClass::setUpdateOneText, &CampaignClass::setUpdateOneDate}) {
    (*campaignsIFunded()[0].*set)("");
  }
  openUpdateOfFirstFunded();
  for (auto* each : shown()) {
    EXPECT_NE(each->text(QAccessible::Name), "") << each->object()->objectName().toStdString();
  }
}

TEST_F(AccessibilityDetailTest, WordsToReadAreNoControls) {
  openUpdateOfFirstFunded();
  auto* date = named("December 1", QAccessible::StaticText);
  EXPECT_FALSE(date->state().focusable);
  EXPECT_EQ(date->actionInterface(), nullptr);
}

TEST_F(AccessibilityDetailTest, EveryActionIsOfferedOnce) {
  const auto check = [&] {
    for (auto* each : shown()) {
      if (each->actionInterface() == nullptr) continue;
      auto names = each->actionInterface()->actionNames();
      EXPECT_EQ(names.removeDuplicates(), 0) << each->text(QAccessible::Name).toStdString();
    }
  };
  check();
  signIn();
  check();
  press("Vegetarian for PETA", QAccessible::ListItem);
  check();
}

TEST_F(AccessibilityDetailTest, AProgressBarIsNotOfferedToBeMoved) {
  signIn();
  press("Vegetarian for PETA", QAccessible::ListItem);
  auto* bar = named("slider", QAccessible::ProgressBar);
  EXPECT_EQ(bar->actionInterface(), nullptr);
  EXPECT_EQ(bar->valueInterface(), nullptr) << "from which the bridge would make two actions";
  EXPECT_NE(bar->valueInterface(), nullptr);
  EXPECT_EQ(bar->actionInterface(), nullptr);
  EXPECT_EQ(bar->role(), QAccessible::ProgressBar);
  EXPECT_NE(bar->valueInterface(), nullptr);
}

TEST_F(AccessibilityDetailTest, WhatAnItemIsFollowsFromItsTypeAndNotFromAPropertysName) {
  QQmlEngine engine;
  QQmlComponent component(&engine);
  component.setData(R"(
    import QtQuick
    Item {
      property bool heading: true
      property real maximumValue: 3
      Accessible.role: Accessible.Button
      Accessible.name: "Own"
    })",
                    {});
  const std::unique_ptr<QObject> item(component.create());
  ASSERT_NE(item, nullptr) << component.errorString().toStdString();
  EXPECT_EQ(QAccessible::queryAccessibleInterface(item.get())->role(), QAccessible::Button);
}

TEST_F(AccessibilityDetailTest, TheTabListHasAName) {
  signIn();
  EXPECT_NE(named("tabBar", QAccessible::PageTabList)->text(QAccessible::Name), "");
}

TEST_F(AccessibilityDetailTest, AtTheWindowsSideTheTabsAreTheSameListInTheSameOrder) {
  signIn();
  for (const QSize size : {QSize(390, 844), QSize(1280, 800)}) {
    app.window().resize(size);
    ASSERT_TRUE(app.waitUntil([&] { return app.page()->width() == size.width(); }));
    const auto* list = named("Sections", QAccessible::PageTabList);
    ASSERT_NE(list, nullptr);
    QStringList tabs;
    for (int i = 0; i < list->childCount(); ++i) {
      EXPECT_EQ(list->child(i)->role(), QAccessible::PageTab);
      tabs << list->child(i)->text(QAccessible::Name);
    }
    EXPECT_EQ(tabs, (QStringList{"Browse", "Funded", "Mine", "News"}));
  }
}

TEST_F(AccessibilityDetailTest, ASumIsReadWithWhatItIsAndDrawnWithoutIt) {
  signIn();
  press("Vegetarian for PETA", QAccessible::ListItem);
  for (const auto& [name, sum] :
       {std::pair("currentFund", "$120.00"), {"desiredFund", "$200.00"}}) {
    const auto meaning = app.require(name).property("view").value<TextBridge*>()->accessibleName();
    EXPECT_NE(meaning, "");
    EXPECT_EQ(named(name, QAccessible::StaticText)->text(QAccessible::Name), meaning + ": " + sum);
    EXPECT_EQ(app.require(name).property("text"), sum);
  }
}

TEST_F(AccessibilityDetailTest, NothingOnACampaignsPageIsReadTwice) {
  signIn();
  press("Vegetarian for PETA", QAccessible::ListItem);
  QStringList names;
  for (auto* each : shown()) names << each->text(QAccessible::Name);
  EXPECT_EQ(names.removeDuplicates(), 0) << names.join(", ").toStdString();
}

TEST_F(AccessibilityDetailTest, AnInputIsAsLargeAsTheBoxThatTheUserSees) {
  const auto* box = app.require("userEmail").parentItem()->parentItem();
  ASSERT_GE(box->height(), 52);
  expectSameArea(named("userEmail", QAccessible::EditableText)->rect(), *box);
}

TEST_F(AccessibilityDetailTest, AnInputThatIsScrolledAwayIsReportedOutOfSight) {
  openForm();
  app.window().resize(390, 568);
  ASSERT_TRUE(app.waitUntil([&] { return app.page()->height() == 568; }));
  auto* first = named("nameOfCreator", QAccessible::EditableText);
  auto* last = named("emailInvite", QAccessible::EditableText);
  EXPECT_FALSE(first->state().offscreen);
  EXPECT_TRUE(last->state().offscreen);
  EXPECT_FALSE(last->state().invisible) << "it can be scrolled to";
  last->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  app.settle();
  EXPECT_FALSE(last->state().offscreen);
  EXPECT_TRUE(first->state().offscreen) << "it lies behind the navigation bar";
}

TEST_F(AccessibilityDetailTest, ARefusedAmountIsDescribedByTheReason) {
  signIn();
  press("Vegetarian for PETA", QAccessible::ListItem);
  EXPECT_EQ(description("dollarAmountField"), "");
  enter("dollarAmountField", "81");
  press("FundButton");
  app.settle();
  EXPECT_EQ(description("dollarAmountField"), "Error: Donation Exceeds Maximum");
}

TEST_F(AccessibilityDetailTest, AReasonThatWasReadStaysToBeFoundWhenItsPageComesBack) {
  const auto reasons = [this] {
    return std::ranges::count_if(shown(), [](auto* each) {
      return each->text(QAccessible::Name).startsWith("Error:") &&
             each->role() != QAccessible::EditableText;
    });
  };
  signIn();
  press("Vegetarian for PETA", QAccessible::ListItem);
  press("FundButton");
  EXPECT_EQ(reasons(), 1);
  enter("dollarAmountField", "1");
  press("FundButton");
  press("noButton");
  ASSERT_TRUE(app.require("errorLabel").isVisible());
  EXPECT_EQ(reasons(), 1);
  EXPECT_TRUE(notifications().isEmpty()) << "read once more";
}

TEST_F(AccessibilityDetailTest, AMissingGoalIsDescribedByTheReason) {
  openForm();
  EXPECT_EQ(description("desiredFunding"), "");
  press("createButton");
  app.settle();
  EXPECT_EQ(description("desiredFunding"),
            app.require("moneyErrorField").property("text").toString().toStdString());
  EXPECT_NE(description("desiredFunding"), "");
  EXPECT_EQ(description("nameOfCampaign"), "") << "its message is what it holds";
}

}  // namespace
}  // namespace leafund
