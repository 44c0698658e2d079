#include <gtest/gtest.h>

#include "model/Catalogue.h"
#include "platform/uikit/UITabContainer.h"
#include "shell/AppDelegate.h"
#include "tests/support/CatalogueRecords.h"
#include "tests/support/HeadlessApplication.h"

namespace leafund {
namespace {

const auto kAccent = UIColor::initWithRedGreenBlueAlpha(83.0 / 255, 134.0 / 255, 47.0 / 255, 1.0);

TEST(AppDelegateTest, LaunchSucceedsWithAndWithoutOptions) {
  HeadlessApplication app;
  AppDelegate delegate;
  EXPECT_TRUE(delegate.applicationDidFinishLaunchingWithOptions(*app.application, std::nullopt));
  EXPECT_TRUE(delegate.applicationDidFinishLaunchingWithOptions(
      *app.application, LaunchOptions{{"url", "http://example.org"}}));
}

TEST(AppDelegateTest, TheWindowIsEmptyAtFirstAndFilledByTheLaunch) {
  EXPECT_EQ(AppDelegate().window(), nullptr);
  HeadlessApplication app;
  EXPECT_NE(app.delegate->window(), nullptr);
}

TEST(AppDelegateTest, TheAccentColourIsMidGreen) {
  HeadlessApplication app;
  const auto color = UITabBar::appearance().tintColor()->CGColor();
  EXPECT_FLOAT_EQ(color.red, 0.3254902F);
  EXPECT_FLOAT_EQ(color.green, 0.5254902F);
  EXPECT_FLOAT_EQ(color.blue, 0.1843137F);
  EXPECT_FLOAT_EQ(color.alpha, 1.0F);
}

TEST(AppDelegateTest, ASelectedTabTitleTakesTheAccentColourAndTheBarItsTint) {
  EXPECT_EQ(UITabBarItem("before launch").selectedTitleColor(), std::nullopt);
  HeadlessApplication app;
  EXPECT_EQ(UITabBarItem("after launch").selectedTitleColor(), kAccent);
  EXPECT_EQ(UITabBar().tintColor(), kAccent);
}

TEST(AppDelegateTest, TheUnselectedStateKeepsTheDefaultColour) {
  UITabBarItemAppearance appearance;
  constexpr unsigned kNormal = 0;
  appearance.setTitleTextAttributesForState(kAccent, kNormal);
  EXPECT_EQ(appearance.selectedTitleColor(), std::nullopt);
}

TEST(AppDelegateTest, TheAccentColourIsSetBeforeTheFirstScreenLoads) {
  HeadlessHost host;
  const UIStoryboard storyboard(
      "First",
      {{"First", [] { return std::make_shared<UIViewController>(); },
        [](UIViewController&) { EXPECT_EQ(UITabBar::appearance().tintColor(), kAccent); }}},
      {});
  EXPECT_EQ(UITabBar::appearance().tintColor(), std::nullopt);
  HeadlessApplication app(storyboard);
  EXPECT_NE(app.shown()->viewIfLoaded(), nullptr);
}

TEST(AppDelegateTest, GoingToTheBackgroundAndBackChangesNothing) {
  HeadlessApplication app;
  app.signIn();
  const auto titles = app.rowTitles();
  const auto records = catalogueRecords();
  const auto showings = app.host.showings();
  testing::internal::CaptureStdout();
  app.application->resignActive();
  app.application->enterBackground();
  app.application->enterForeground();
  app.application->becomeActive();
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(app.rowTitles(), titles);
  EXPECT_EQ(catalogueRecords(), records);
  EXPECT_EQ(app.host.showings(), showings);
}

TEST(AppDelegateTest, TerminatingPrintsNothingAndChangesNoRecord) {
  HeadlessApplication app;
  const auto records = catalogueRecords();
  testing::internal::CaptureStdout();
  app.application->terminate();
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(catalogueRecords(), records);
}

TEST(AppDelegateTest, AWholePledgeRoadTouchesNoCampaignOfTheUser) {
  HeadlessApplication app;
  app.signIn();
  app.tapRow(0);
  app.type("dollarAmountField", "80");
  app.tap("FundButton");
  app.tap("yesButton");
  app.tap("homeButton");
  app.tap("fundedTab");
  app.tapRow(0);
  app.tap("campaignUpdates");
  app.application->goBack();
  app.application->goBack();
  app.tap("newsTab");
  currentUserName() = "Zelda";
  EXPECT_EQ(myUnfundedCampaigns()[0]->creator(), "Zelda");
}

TEST(AppDelegateTest, LaunchingTouchesNoCampaignOfTheUser) {
  HeadlessApplication app;
  currentUserName() = "Zelda";  // the two own campaigns take the name at their first use
  EXPECT_EQ(myUnfundedCampaigns()[0]->creator(), "Zelda");
}

}  // namespace
}  // namespace leafund
