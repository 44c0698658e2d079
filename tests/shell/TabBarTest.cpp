#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/uikit/UITabContainer.h"
#include "shell/NewsFeedVC.h"
#include "shell/TabBarVC.h"
#include "tests/support/CatalogueRecords.h"
#include "tests/support/HeadlessApplication.h"

namespace leafund {
namespace {

using testing::ElementsAre;

std::vector<std::string> tabTitles(HeadlessApplication& app) {
  std::vector<std::string> titles;
  for (const auto* name : {"browseTab", "fundedTab", "mineTab", "newsTab"}) {
    titles.push_back(app.viewAs<UITabBarItem>(name)->title());
  }
  return titles;
}

TEST(TabBarTest, OnceLoadedItShowsNoBackButtonAndThereIsNoWayBack) {
  HeadlessApplication app;
  app.signIn();
  const auto& home = app.navigation().topViewController();
  EXPECT_TRUE(home->navigationItem().hidesBackButton());
  EXPECT_FALSE(app.navigation().canGoBack(*home));
  app.application->goBack();
  EXPECT_EQ(app.navigation().topViewController(), home);
}

TEST(TabBarTest, TheTabsAreBrowseFundedMineAndNewsWithBrowseSelected) {
  HeadlessApplication app;
  app.signIn();
  std::vector<std::string> tabs;
  for (const auto& tab : app.view("tabBar")->subviews()) tabs.push_back(tab->name());
  EXPECT_THAT(tabs, ElementsAre("browseTab", "fundedTab", "mineTab", "newsTab"));
  EXPECT_EQ(app.shown()->className(), "OtherCampaignsTableViewController");
  EXPECT_TRUE(app.viewAs<UITabBarItem>("browseTab")->selected());
  EXPECT_FALSE(app.viewAs<UITabBarItem>("newsTab")->selected());
}

TEST(TabBarTest, ATabsScreenIsMadeWhenFirstSelectedAndKept) {
  HeadlessApplication app;
  app.signIn();
  const auto& home = app.navigation().topViewController();
  EXPECT_EQ(home->childViewControllers().size(), 1U);
  app.tap("fundedTab");
  const auto funded = app.shown();
  EXPECT_EQ(home->childViewControllers().size(), 2U);
  app.tap("browseTab");
  app.tap("fundedTab");
  EXPECT_EQ(app.shown(), funded);
  EXPECT_TRUE(app.viewAs<UITabBarItem>("fundedTab")->selected());
  EXPECT_FALSE(app.viewAs<UITabBarItem>("browseTab")->selected());
}

TEST(TabBarTest, SelectingATabIsOneAppearanceAndSelectingItAgainIsNone) {
  HeadlessApplication app;
  app.signIn();
  testing::internal::CaptureStdout();
  app.tap("fundedTab");
  app.tap("fundedTab");
  app.application->resize({844, 390});
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "3\n");
}

TEST(TabBarTest, ComingBackFromADetailScreenIsOneAppearanceOfTheVisibleTab) {
  HeadlessApplication app;
  app.signIn();
  app.tap("fundedTab");
  app.tapRow(0);
  testing::internal::CaptureStdout();
  app.application->goBack();
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "3\n");
}

TEST(TabBarTest, SelectedTitlesTakeTheAccentColour) {
  HeadlessApplication app;
  app.signIn();
  const auto accent = UIColor::initWithRedGreenBlueAlpha(83.0 / 255, 134.0 / 255, 47.0 / 255, 1.0);
  EXPECT_EQ(app.viewAs<UITabBarItem>("newsTab")->selectedTitleColor(), accent);
  EXPECT_EQ(app.viewAs<UITabBar>("tabBar")->tintColor(), accent);
}

TEST(TabBarTest, TheNewButtonIsSeenOnTheMineTabAlone) {
  HeadlessApplication app;
  app.signIn();
  for (const auto* tab : {"browseTab", "fundedTab", "newsTab"}) {
    app.tap(tab);
    EXPECT_TRUE(app.view("newButton")->hidden()) << tab;
  }
  app.tap("mineTab");
  EXPECT_FALSE(app.view("newButton")->hidden());
}

TEST(TabBarTest, LoadingAgainRepeatsTheSameAndChangesNoData) {
  HeadlessApplication app;
  app.signIn();
  app.tap("newsTab");
  const auto home = app.navigation().topViewController();
  const auto news = app.shown();
  const auto records = catalogueRecords();
  const auto titles = tabTitles(app);
  home->navigationItem().setHidesBackButton(false);
  home->releaseView();
  news->releaseView();
  home->view();
  news->view();
  EXPECT_TRUE(home->navigationItem().hidesBackButton());
  EXPECT_EQ(tabTitles(app), titles);
  EXPECT_EQ(catalogueRecords(), records);
}

TEST(TabBarTest, AMemoryWarningChangesNothing) {
  HeadlessApplication app;
  app.signIn();
  const auto titles = app.rowTitles();
  app.application->receiveMemoryWarning();
  EXPECT_EQ(app.rowTitles(), titles);
}

}  // namespace
}  // namespace leafund
