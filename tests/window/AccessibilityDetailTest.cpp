#include "model/Catalogue.h"
#include "tests/window/AccessibilityFixture.h"

namespace leafund {
namespace {

// What a screen reader is told of single items: words, actions, extents and descriptions.
class AccessibilityDetailTest : public AccessibilityTest {
 protected:
  void openForm() {
    signIn();
    press("Mine", QAccessible::PageTab);
    press("New");
  }
  void openUpdateOfFirstFunded() {
    signIn();
    press("Funded", QAccessible::PageTab);
    press(QString::fromStdString(campaignsIFunded()[0]->title()), QAccessible::ListItem);
    press("Read the update");
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
  auto* bar = named("Share of the goal raised", QAccessible::ProgressBar);
  EXPECT_EQ(bar->actionInterface(), nullptr);
  EXPECT_EQ(bar->valueInterface(), nullptr) << "from which the bridge would make two actions";
  EXPECT_NE(bar->valueInterface(), nullptr);
  EXPECT_EQ(bar->actionInterface(), nullptr);
  EXPECT_EQ(bar->role(), QAccessible::ProgressBar);
  EXPECT_NE(bar->valueInterface(), nullptr);
}

TEST_F(AccessibilityDetailTest, TheTabListHasAName) {
  signIn();
  EXPECT_NE(named("Sections", QAccessible::PageTabList), nullptr);
}

TEST_F(AccessibilityDetailTest, ASumIsReadWithWhatItIsAndDrawnWithoutIt) {
  signIn();
  press("Vegetarian for PETA", QAccessible::ListItem);
  EXPECT_NE(named("Raised: $120.00", QAccessible::StaticText), nullptr);
  EXPECT_NE(named("Goal: $200.00", QAccessible::StaticText), nullptr);
  EXPECT_EQ(app.require("currentFund").property("text"), "$120.00");
  EXPECT_EQ(app.require("desiredFund").property("text"), "$200.00");
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
  expectSameArea(named("E-mail", QAccessible::EditableText)->rect(), *box);
}

TEST_F(AccessibilityDetailTest, AnInputThatIsScrolledAwayIsReportedOutOfSight) {
  openForm();
  app.window().resize(390, 568);
  ASSERT_TRUE(app.waitUntil([&] { return app.page()->height() == 568; }));
  auto* first = named("Your name", QAccessible::EditableText);
  auto* last = named("E-mail addresses of friends", QAccessible::EditableText);
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
  EXPECT_EQ(description("Amount in dollars"), "");
  enter("Amount in dollars", "81");
  press("Fund this campaign");
  app.settle();
  EXPECT_EQ(description("Amount in dollars"), "Error: Donation Exceeds Maximum");
}

TEST_F(AccessibilityDetailTest, AMissingGoalIsDescribedByTheReason) {
  openForm();
  EXPECT_EQ(description("Goal in dollars"), "");
  press("Create campaign");
  app.settle();
  EXPECT_EQ(description("Goal in dollars"), "Error: Please Enter an Amount, for Example 250");
  EXPECT_EQ(description("Campaign name"), "") << "its message is what it holds";
}

}  // namespace
}  // namespace leafund
