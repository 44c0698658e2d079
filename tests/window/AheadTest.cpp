#include <gtest/gtest.h>

#include <QAccessible>
#include <algorithm>
#include <set>

#include "model/Catalogue.h"
#include "screens/accounts/SignUpVC.h"
#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

// Screens that may come next wait in the window, hidden.
class AheadTest : public WindowTest {
 protected:
  QQuickItem* waiting(const QString& className) {
    for (auto* each : app.window().contentItem()->childItems()) {
      if (each->objectName() == className && !each->isVisible()) return each;
    }
    return nullptr;
  }
  // Fails the test where it never comes to wait.
  QQuickItem* awaited(const QString& className) {
    EXPECT_TRUE(app.waitUntil([&] { return waiting(className) != nullptr; }));
    return waiting(className);
  }

  const QString kCampaign = "OneCampaignViewController";
};

TEST_F(AheadTest, AScreenThatMayComeNextWaitsAndIsTheOneThatComes) {
  signIn();
  const auto* next = awaited(kCampaign);
  EXPECT_EQ(app.page()->objectName(), "TabBarVC");
  click("abc-0");
  EXPECT_EQ(app.page(), next);
  EXPECT_EQ(waiting(kCampaign), nullptr);
}

TEST_F(AheadTest, AScreenThatIsWantedBeforeItWaitsComesAllTheSame) {
  click("signUpButton");
  app.press(Qt::Key_Escape);
  click("signUpButton");
  EXPECT_EQ(app.shown()->className(), "SignUpVC");
  EXPECT_TRUE(app.require("nameField").isVisible());
}

TEST_F(AheadTest, AScreenMadeAheadIsInvisibleToAssistiveTechnology) {
  QAccessible::setActive(true);
  const auto* next = awaited("SignUpVC");
  ASSERT_NE(next, nullptr);
  for (const auto* name : {"welcome", "nameField", "signUpButton"}) {
    auto* access = QAccessible::queryAccessibleInterface(next->findChild<QQuickItem*>(name));
    ASSERT_NE(access, nullptr) << name;
    EXPECT_TRUE(access->state().invisible) << name;
  }
}

TEST_F(AheadTest, AScreenMadeAheadTakesNoFocusFromTheOneThatIsShown) {
  const auto* before = app.window().activeFocusItem();
  const auto* next = awaited("SignUpVC");
  ASSERT_NE(next, nullptr);
  EXPECT_EQ(app.window().activeFocusItem(), before);
  for (int i = 0; i < 12; ++i) {
    app.press(Qt::Key_Tab);
    EXPECT_FALSE(next->isAncestorOf(app.window().activeFocusItem()));
  }
}

TEST_F(AheadTest, ASecondScreenOfASceneShowsNothingOfTheFirst) {
  signIn();
  awaited(kCampaign);
  click("abc-0");
  const QString first = shownWords("campaignTitle");
  type("dollarAmountField", "ten");
  click("FundButton");
  EXPECT_TRUE(app.require("errorLabel").isVisible());
  app.press(Qt::Key_Escape);
  app.settle();
  awaited(kCampaign);
  click("abc-1");
  EXPECT_NE(shownWords("campaignTitle"), first);
  EXPECT_EQ(shownWords("dollarAmountField"), "");
  EXPECT_FALSE(app.require("errorLabel").isVisible());
  EXPECT_FALSE(app.require("dollarAmountField").hasActiveFocus());
  app.typeKeys("z");
  EXPECT_EQ(shownWords("dollarAmountField"), "");
}

TEST_F(AheadTest, AScreenThatWaitedSaysNoMessageOfItsScene) {
  QAccessible::setActive(true);
  signIn();
  auto* next = awaited(kCampaign);
  QObject context;
  int said = 0;
  for (auto* item : next->findChildren<QQuickItem*>()) {
    auto* access = QAccessible::queryAccessibleInterface(item);
    if (access == nullptr || access->role() != QAccessible::Notification) continue;
    QObject::connect(item, &QQuickItem::visibleChanged, &context,
                     [&said, item] { said += item->isVisible(); });
  }
  click("abc-0");
  EXPECT_EQ(app.page(), next);
  EXPECT_EQ(said, 0);
}

TEST_F(AheadTest, TheShareRaisedFillsInAScreenThatWaited) {
  signIn();
  awaited(kCampaign);
  click("abc-0");
  auto& bar = app.require("slider");
  const double share = bar.property("goal").toDouble();
  EXPECT_GT(share, 0);
  EXPECT_TRUE(app.waitUntil([&] { return bar.property("shown").toDouble() == share; }));
}

// What a screen would do when it loads.
class CountedSignUp : public SignUpVC {
 public:
  void viewDidLoad() override {
    ++loads;
    SignUpVC::viewDidLoad();
  }
  static int loads;
};
int CountedSignUp::loads = 0;

UIStoryboard countedStoryboard() {
  auto scenes = mainStoryboard().scenes();
  for (auto& scene : scenes) {
    if (scene.name == "SignUpVC") scene.make = [] { return std::make_shared<CountedSignUp>(); };
  }
  return {"LandingPageVC", std::move(scenes), mainStoryboard().segues()};
}

TEST(AheadLogicTest, NoLogicRunsForAScreenMadeAhead) {
  const UIStoryboard storyboard = countedStoryboard();
  WindowApplication app(storyboard);
  const auto* content = app.window().contentItem();
  ASSERT_TRUE(app.waitUntil([&] { return content->childItems().size() == 3; }));
  EXPECT_EQ(CountedSignUp::loads, 0);
  EXPECT_EQ(app.navigation().viewControllers().size(), 1U);
  app.click(app.require("signUpButton"));
  app.settle();
  EXPECT_EQ(CountedSignUp::loads, 1);
}

// As a user who looks at each screen for long before going on.
class AheadRestTest : public AheadTest {
 protected:
  void rest(const std::set<QString>& next) {
    EXPECT_TRUE(app.waitUntil([&] {
      return std::ranges::all_of(next, [&](const auto& name) { return waiting(name) != nullptr; });
    }));
  }
};

TEST_F(AheadRestTest, ScreensMadeAheadPrintNothingFetchNothingAndMakeNoListOfTheCatalogue) {
  testing::internal::CaptureStdout();
  rest({"SignUpVC", "TabBarVC"});
  click("signUpButton");
  rest({"TabBarVC"});
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_TRUE(app.server().requests().empty());
  // Made at their first use, and with the name of that moment.
  currentUserName() = "Wren";
  EXPECT_EQ(myUnfundedCampaigns().front()->creator(), "Wren");
}

TEST_F(AheadRestTest, ScreensMadeAheadFromAListPrintAndFetchNothing) {
  signIn();
  click("mineTab");
  app.settle();
  const auto asked = app.server().requests().size();
  testing::internal::CaptureStdout();
  rest({"OneCampaignViewController", "NewCampaignVC"});
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(app.server().requests().size(), asked);
}

}  // namespace
}  // namespace leafund
