#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/ProbeSkin.h"
#include "tests/support/ProbeTable.h"

namespace leafund {
namespace {

using testing::ElementsAre;

// Twenty rows of 100 points in a window of 300, and a skin that counts what it is told.
class UITableViewScrollTest : public testing::Test {
 protected:
  double offset() { return probe.table().contentOffset().y; }
  unsigned placements() { return probe.table().placements(); }
  void scroll(double y, unsigned seen) { probe.app.application->scroll(table, y, seen); }

  ProbeTable probe{20};
  std::shared_ptr<UITableView> table =
      std::static_pointer_cast<UITableView>(probe.app.shown()->view());
  unsigned before = placements();
};

TEST_F(UITableViewScrollTest, WhereTheUserScrollsIsNotToldBack) {
  probe.scroll(150);
  probe.scroll(730);
  EXPECT_EQ(offset(), 730);
  EXPECT_EQ(placements(), before);
  EXPECT_THAT(probe.visibleRows(), ElementsAre(7, 8, 9, 10));
}

TEST_F(UITableViewScrollTest, WhatLogicPlacesIsCounted) {
  probe.app.application->turn([&] { table->setContentOffset({0, 40}); });
  EXPECT_EQ(placements(), before + 1);
  probe.app.application->turn([&] { table->setContentOffset({0, 40}); });
  EXPECT_EQ(placements(), before + 1);
}

TEST_F(UITableViewScrollTest, AReloadThatLeavesTheOffsetIsNoPlacementAndOneThatMovesItIs) {
  probe.scroll(450);
  probe.reload();
  EXPECT_EQ(placements(), before);
  probe.rows->count = 5;
  probe.reload();
  EXPECT_EQ(offset(), 200);
  EXPECT_EQ(placements(), before + 1);
}

TEST_F(UITableViewScrollTest, ALayoutThatMovesTheOffsetIsAPlacement) {
  probe.scroll(1700);
  probe.app.application->resize({390, 500});
  EXPECT_EQ(offset(), 1500);
  EXPECT_EQ(placements(), before + 1);
}

TEST_F(UITableViewScrollTest, AScrollBeyondTheEndIsTakenAsFarAsItGoesAndPlaced) {
  probe.scroll(5000);
  EXPECT_EQ(offset(), 1700);
  EXPECT_EQ(placements(), before + 1);
  probe.scroll(5000);  // the item is beyond the end once more
  EXPECT_EQ(placements(), before + 2);
}

TEST_F(UITableViewScrollTest, AScrollOfAPlaceThatIsNoMoreIsDropped) {
  probe.app.application->turn([&] { table->setContentOffset({0, 40}); });
  scroll(900, before);
  EXPECT_EQ(offset(), 40);
  EXPECT_EQ(placements(), before + 1);
  scroll(900, before + 1);
  EXPECT_EQ(offset(), 900);
}

TEST_F(UITableViewScrollTest, ARefusedScrollPutsTheItemBack) {
  probe.scroll(300);
  table->setHidden(true);
  probe.scroll(500);
  EXPECT_EQ(offset(), 300);
  EXPECT_EQ(placements(), before + 1);
  probe.scroll(300);  // it is back
  EXPECT_EQ(placements(), before + 1);
}

TEST_F(UITableViewScrollTest, OfConsecutiveScrollsThatWaitOnlyTheLatestCounts) {
  probe.rows->told.clear();
  probe.app.application->turn([&] {
    for (const double y : {400.0, 800.0, 1200.0}) scroll(y, before);
  });
  EXPECT_EQ(offset(), 1200);
  EXPECT_THAT(probe.rows->told, ElementsAre("cell 12", "display 12", "cell 13", "display 13",
                                            "cell 14", "display 14"));
}

TEST_F(UITableViewScrollTest, AScrollThatWaitsIsPassedByNoOtherEvent) {
  std::vector<double> met;
  auto& application = *probe.app.application;
  application.turn([&] {
    scroll(400, before);
    application.turn([&] { met.push_back(offset()); });
    scroll(800, before);
    scroll(900, before);
    application.turn([&] { met.push_back(offset()); });
  });
  EXPECT_THAT(met, ElementsAre(400, 900));
}

TEST_F(UITableViewScrollTest, OfConsecutiveResizesThatWaitOnlyTheLatestCounts) {
  std::vector<double> met;
  auto& application = *probe.app.application;
  ProbeSkin skin(table, [&] { met.push_back(table->frame().height); });
  application.turn([&] {
    application.resize({390, 400});
    application.resize({390, 500});
    application.turn([&] { met.push_back(-1); });
    application.resize({390, 600});
  });
  EXPECT_THAT(met, ElementsAre(500, -1, 600));
}

TEST_F(UITableViewScrollTest, TheSkinHearsOfPlacementsAndNotOfTheUsersOwnScrolling) {
  int told = 0;
  probe.scroll(10);
  ProbeSkin skin(table, [&] { ++told; });
  probe.scroll(20);  // the same rows are seen
  EXPECT_EQ(told, 0);
  probe.app.application->turn([&] { table->setContentOffset({0, 30}); });
  EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace leafund
