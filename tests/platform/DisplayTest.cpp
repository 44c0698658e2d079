#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/display/Cards.h"
#include "platform/display/SceneViews.h"
#include "platform/display/ScreenPages.h"
#include "platform/uikit/Scene.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"
#include "tests/support/HeadlessApplication.h"
#include "tests/support/ProbeScreen.h"

namespace leafund {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto Push = SegueKind::Push;

void labelled(Scene<ProbeScreen>& scene, ProbeScreen& screen) {
  scene.words("heading", screen.className());
}

void home(Scene<ProbeScreen>& scene, ProbeScreen&) {
  scene.tabs({{"oneTab", "One", "One"}, {"twoTab", "Two", "Two"}});
  scene.segue(scene.buttonOnTab("oneTab", "openButton", "Open"), "open");
}

class DisplayTest : public testing::Test {
 protected:
  UINavigationController& stack() { return app.navigation(); }

  ProbeLog log;
  UIStoryboard storyboard{"Home",
                          {probeScene(log, "Home", home), probeScene(log, "One", labelled),
                           probeScene(log, "Two", labelled), probeScene(log, "Detail", labelled)},
                          {{"open", "Home", "Detail", Push}}};
  HeadlessApplication app{storyboard};
};

std::vector<std::string> namesIn(const UIViewController& screen) {
  std::vector<std::string> names;
  for (const auto& view : namedViews(screen)) names.push_back(view->name());
  return names;
}

using SceneViewsTest = DisplayTest;

TEST_F(SceneViewsTest, NamedViewsComeInTheOrderOfTheSceneEachBeforeThoseInsideIt) {
  EXPECT_THAT(namesIn(*stack().topViewController()),
              ElementsAre("tabs", "tabBar", "oneTab", "twoTab", "openButton"));
}

TEST_F(SceneViewsTest, AnotherScreensViewsAreItsOwn) {
  EXPECT_THAT(namesIn(*app.shown()), ElementsAre("heading"));
}

class TableScreen final : public UIViewController {
  std::shared_ptr<UIView> makeRootView() override { return std::make_shared<UITableView>(); }
};

TEST_F(SceneViewsTest, RowsAreNoViewsOfTheScene) {
  const auto screen = std::make_shared<TableScreen>();
  const auto row = std::make_shared<UILabel>();
  row->setName("row");
  screen->view()->addSubview(row);
  EXPECT_THAT(namesIn(*screen), IsEmpty());
}

std::vector<std::string> partNames(UITableViewCellStyle style) {
  std::vector<std::string> names;
  for (const auto& part : partsOf(UITableViewCell(style, "row"))) names.emplace_back(part.name);
  return names;
}

TEST_F(SceneViewsTest, ACellHasThePartsOfItsStyle) {
  EXPECT_THAT(partNames(UITableViewCellStyle::Bare), ElementsAre("content"));
  EXPECT_THAT(partNames(UITableViewCellStyle::TitleOnly), ElementsAre("content", "title"));
  EXPECT_THAT(partNames(UITableViewCellStyle::TextOnly), ElementsAre("content", "title", "detail"));
  EXPECT_THAT(partNames(UITableViewCellStyle::Subtitle),
              ElementsAre("content", "picture", "title", "detail"));
}

struct Page {
  std::string screen;
};

class ScreenPagesTest : public DisplayTest {
 protected:
  ScreenPages<Page>::Change follow() {
    return pages.follow(stack(), [](UIViewController& screen) {
      return std::make_unique<Page>(Page{screen.className()});
    });
  }

  ScreenPages<Page> pages;
};

TEST_F(ScreenPagesTest, AScreenThatComesGetsAPageAndKeepsItWhileCovered) {
  auto& first = follow().shown;
  EXPECT_EQ(first.screen, "Home");
  app.tap("openButton");
  const auto pushed = follow();
  EXPECT_EQ(pushed.shown.screen, "Detail");
  EXPECT_TRUE(pushed.came);
  EXPECT_THAT(pushed.gone, IsEmpty());
  app.application->goBack();
  const auto back = follow();
  EXPECT_EQ(&back.shown, &first);
  EXPECT_FALSE(back.came);
  ASSERT_EQ(back.gone.size(), 1U);
  EXPECT_EQ(back.gone[0]->screen, "Detail");
}

TEST_F(ScreenPagesTest, FollowingAnUnchangedStackChangesNothing) {
  auto& page = follow().shown;
  const auto again = follow();
  EXPECT_EQ(&again.shown, &page);
  EXPECT_FALSE(again.came);
  EXPECT_THAT(again.gone, IsEmpty());
}

TEST_F(ScreenPagesTest, AScreenThatCameAndWentUnseenHasNoPage) {
  follow();
  app.tap("openButton");
  app.application->goBack();
  EXPECT_THAT(follow().gone, IsEmpty());
}

TEST_F(ScreenPagesTest, AViewThatWasLoadedAnewGetsANewPage) {
  follow();
  app.tap("openButton");
  follow();
  stack().viewControllers()[0]->releaseView();
  app.application->goBack();
  const auto back = follow();
  EXPECT_TRUE(back.came);
  EXPECT_EQ(back.gone.size(), 2U);
}

TEST_F(ScreenPagesTest, ChildrenAreKeptWhileOthersAreShown) {
  const auto make = [](UIViewController& screen) {
    return std::make_unique<Page>(Page{screen.className()});
  };
  auto& one = pages.pageFor(*app.shown(), make);
  app.tap("twoTab");
  EXPECT_EQ(pages.pageFor(*app.shown(), make).screen, "Two");
  app.tap("oneTab");
  EXPECT_EQ(&pages.pageFor(*app.shown(), make), &one);
  std::vector<std::string> all;
  pages.forEach([&](Page& page) { all.push_back(page.screen); });
  EXPECT_THAT(all, ElementsAre("One", "Two"));
}

std::shared_ptr<UIView> card(double height) {
  auto view = std::make_shared<UIView>(CGRect{0, 0, 10, height});
  view->setBackgroundColor(UIColor::redColor());
  return view;
}

TEST(CardsTest, EachLookCountsOnceAndTheLastLaidIsUndermost) {
  UIView row;
  Cards cards;
  const auto lay = [&](const std::shared_ptr<UIView>& view) {
    row.addSubview(view);
    row.sendSubviewToBack(view);
    cards.take(row);
  };
  lay(card(1));
  lay(card(2));
  lay(card(1));
  ASSERT_EQ(cards.looks().size(), 2U);
  EXPECT_EQ(cards.looks()[0].frame.height, 2);
  EXPECT_EQ(cards.looks()[1].frame.height, 1);
}

TEST(CardsTest, WhatHasNoGroundOrAKindOfItsOwnIsNoCard) {
  UIView row;
  row.addSubview(std::make_shared<UIView>());
  const auto label = std::make_shared<UILabel>();
  label->setBackgroundColor(UIColor::redColor());
  row.addSubview(label);
  Cards cards;
  cards.take(row);
  EXPECT_THAT(cards.looks(), IsEmpty());
}

}  // namespace
}  // namespace leafund
