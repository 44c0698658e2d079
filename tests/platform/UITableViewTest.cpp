#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/uikit/UITableView.h"
#include "tests/support/ProbeTable.h"
#include "tests/support/ProcessorTime.h"

namespace leafund {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::ptrdiff_t kMany = 1'000'000;

double tallAndSmall(std::ptrdiff_t row) { return row % 2 == 0 ? 40 : 100; }

TEST(UITableViewTest, ReloadingAsksForSectionsAndRowsOnceAndForEachHeightOnce) {
  ProbeTable probe(20);
  EXPECT_EQ(probe.rows->sectionQuestions, 1);
  EXPECT_EQ(probe.rows->countQuestions, 1);
  EXPECT_EQ(probe.rows->heightQuestions, 20);
  probe.reload();
  EXPECT_EQ(probe.rows->countQuestions, 2);
}

TEST(UITableViewTest, ScrollingResizingAndDrawingNeverAskForTheCount) {
  ProbeTable probe(20);
  probe.scroll(450);
  probe.app.application->resize({320, 500});
  probe.app.application->turn([&] { probe.table().setNeedsLayout(); });
  EXPECT_THAT(probe.visibleRows(), ElementsAre(4, 5, 6, 7, 8, 9));
  EXPECT_EQ(probe.rows->countQuestions, 1);
  EXPECT_EQ(probe.rows->sectionQuestions, 1);
  EXPECT_EQ(probe.rows->heightQuestions, 20);
}

TEST(UITableViewTest, WithoutADataSourceOrBeforeAReloadThereAreNoRows) {
  ProbeTable probe(3);
  probe.table().setDataSource({});
  probe.reload();
  EXPECT_THAT(probe.visibleRows(), IsEmpty());
  EXPECT_EQ(probe.table().contentHeight(), 0);
  probe.table().setDataSource(probe.rows);
  probe.app.application->turn([&] { probe.table().setNeedsLayout(); });
  EXPECT_THAT(probe.visibleRows(), IsEmpty());
}

TEST(UITableViewTest, WithoutASectionThereAreNoRows) {
  ProbeTable probe(3);
  probe.rows->sections = 0;
  probe.reload();
  EXPECT_THAT(probe.visibleRows(), IsEmpty());
  EXPECT_EQ(probe.table().contentHeight(), 0);
  EXPECT_EQ(probe.rows->countQuestions, 1);
}

TEST(UITableViewTest, CellsAreAskedForInLayoutAlone) {
  ProbeTable probe(3);
  probe.rows->told.clear();
  probe.app.application->turn([&] {
    probe.table().reloadData();
    EXPECT_THAT(probe.rows->told, IsEmpty());
    EXPECT_THAT(probe.visibleRows(), IsEmpty());
  });
  EXPECT_THAT(probe.visibleRows(), ElementsAre(0, 1, 2));
}

TEST(UITableViewTest, RowsEndingExactlyAtTheEdgesAreNotVisible) {
  ProbeTable probe(20);
  EXPECT_THAT(probe.visibleRows(), ElementsAre(0, 1, 2));
  probe.scroll(200);
  EXPECT_THAT(probe.visibleRows(), ElementsAre(2, 3, 4));
}

TEST(UITableViewTest, RowsPartlySeenAtBothEndsAreVisible) {
  ProbeTable probe(20);
  probe.scroll(250);
  EXPECT_THAT(probe.visibleRows(), ElementsAre(2, 3, 4, 5));
  probe.scroll(200.5);
  EXPECT_THAT(probe.visibleRows(), ElementsAre(2, 3, 4, 5));
  probe.scroll(199.5);
  EXPECT_THAT(probe.visibleRows(), ElementsAre(1, 2, 3, 4));
}

TEST(UITableViewTest, AnEmptyListShowsNothing) {
  ProbeTable probe(0);
  EXPECT_THAT(probe.visibleRows(), IsEmpty());
  EXPECT_EQ(probe.table().contentHeight(), 0);
  probe.scroll(100);
  EXPECT_EQ(probe.table().contentOffset().y, 0);
}

TEST(UITableViewTest, ATableShorterThanItsViewportShowsAllItsRowsAndDoesNotScroll) {
  ProbeTable probe(2);
  EXPECT_THAT(probe.visibleRows(), ElementsAre(0, 1));
  EXPECT_EQ(probe.table().greatestOffset(), 0);
  probe.scroll(50);
  EXPECT_EQ(probe.table().contentOffset().y, 0);
}

TEST(UITableViewTest, AViewportWithoutHeightShowsNothing) {
  ProbeTable probe(20, {390, 0});
  EXPECT_THAT(probe.visibleRows(), IsEmpty());
  EXPECT_THAT(probe.rows->told, IsEmpty());
  probe.app.application->resize({390, 100});
  EXPECT_THAT(probe.visibleRows(), ElementsAre(0));
}

TEST(UITableViewTest, ScrollingStopsAtBothEndsOfTheContent) {
  ProbeTable probe(10);
  probe.scroll(10'000);
  EXPECT_EQ(probe.table().contentOffset().y, 700);
  EXPECT_THAT(probe.visibleRows(), ElementsAre(7, 8, 9));
  probe.scroll(-50);
  EXPECT_EQ(probe.table().contentOffset().y, 0);
}

TEST(UITableViewTest, AfterAReloadWithFewerRowsTheOffsetIsWithinTheContent) {
  ProbeTable probe(20);
  probe.scroll(1700);
  probe.rows->count = 5;
  probe.reload();
  EXPECT_EQ(probe.table().contentOffset().y, 200);
  EXPECT_THAT(probe.visibleRows(), ElementsAre(2, 3, 4));
  probe.rows->count = 0;
  probe.reload();
  EXPECT_EQ(probe.table().contentOffset().y, 0);
  EXPECT_THAT(probe.visibleRows(), IsEmpty());
}

TEST(UITableViewTest, AfterGrowingTheViewportShowsNothingBelowTheLastRow) {
  ProbeTable probe(10);
  probe.scroll(700);
  probe.app.application->resize({390, 450});
  EXPECT_EQ(probe.table().contentOffset().y, 550);
  EXPECT_THAT(probe.visibleRows(), ElementsAre(5, 6, 7, 8, 9));
}

TEST(UITableViewTest, AReloadKeepsTheOffsetWhereTheRowsStillReachIt) {
  ProbeTable probe(20);
  probe.scroll(450);
  probe.rows->count = 19;
  probe.reload();
  EXPECT_EQ(probe.table().contentOffset().y, 450);
  EXPECT_THAT(probe.visibleRows(), ElementsAre(4, 5, 6, 7));
}

TEST(UITableViewTest, RowsOfDifferentHeightsLieUnderOneAnotherAsWideAsTheTable) {
  ProbeTable probe(20, {390, 300}, tallAndSmall);
  EXPECT_EQ(probe.table().contentHeight(), 10 * 140);
  EXPECT_THAT(probe.visibleRows(), ElementsAre(0, 1, 2, 3, 4));
  EXPECT_EQ(probe.cell(1)->frame(), (CGRect{0, 40, 390, 100}));
  EXPECT_EQ(probe.cell(4)->frame(), (CGRect{0, 280, 390, 40}));
  probe.scroll(40);
  EXPECT_THAT(probe.visibleRows(), ElementsAre(1, 2, 3, 4, 5));
  probe.scroll(140);
  EXPECT_THAT(probe.visibleRows(), ElementsAre(2, 3, 4, 5, 6));
  probe.scroll(139);
  EXPECT_THAT(probe.visibleRows(), ElementsAre(1, 2, 3, 4, 5, 6));
}

TEST(UITableViewTest, ARowWithoutHeightTakesNoRoomBetweenItsNeighbours) {
  ProbeTable probe(4, {390, 300}, [](std::ptrdiff_t row) { return row == 1 ? 0.0 : 100.0; });
  EXPECT_EQ(probe.table().contentHeight(), 300);
  EXPECT_THAT(probe.visibleRows(), ElementsAre(0, 1, 2, 3));
  EXPECT_EQ(probe.cell(1)->frame(), (CGRect{0, 100, 390, 0}));
  EXPECT_EQ(probe.cell(2)->frame(), (CGRect{0, 100, 390, 100}));
}

TEST(UITableViewTest, AWiderTableMakesItsRowsWider) {
  ProbeTable probe(20);
  const auto told = probe.rows->told;
  probe.app.application->resize({500, 300});
  EXPECT_EQ(probe.cell(2)->frame(), (CGRect{0, 200, 500, 100}));
  EXPECT_EQ(probe.rows->told, told);
}

TEST(UITableViewTest, TheRowHeightWrittenToTheTableChangesNoLayout) {
  ProbeTable probe(20);
  EXPECT_EQ(probe.table().rowHeight(), 44);
  const auto told = probe.rows->told;
  probe.app.application->turn([&] { probe.table().setRowHeight(10); });
  EXPECT_EQ(probe.table().rowHeight(), 10);
  EXPECT_EQ(probe.rows->told, told);
  probe.reload();
  EXPECT_EQ(probe.table().contentHeight(), 2000);
  EXPECT_EQ(probe.cell(0)->frame().height, 100);
}

TEST(UITableViewTest, AMillionRowsScrollAsTenDo) {
  ProbeTable probe(kMany);
  EXPECT_EQ(probe.table().contentHeight(), 100.0 * kMany);
  const double start = processorSeconds();
  for (int step = 0; step < 1000; ++step) probe.scroll(99'000.0 * step + 50);
  // A walk over the rows at each of these steps would take minutes.
  EXPECT_LT(processorSeconds() - start, 5);
  EXPECT_THAT(probe.visibleRows(), ElementsAre(989010, 989011, 989012, 989013));
  EXPECT_EQ(probe.table().subviews().size(), 4U);
  EXPECT_EQ(probe.rows->countQuestions, 1);
}

TEST(UITableViewTest, ATableWithoutItsApplicationLaysNothingOut) {
  const auto table = std::make_shared<UITableView>();
  const auto rows = std::make_shared<ProbeRows>();
  rows->count = 3;
  table->setDataSource(rows);
  table->setDelegate(rows);
  table->reloadData();
  EXPECT_EQ(table->contentHeight(), 300);
  EXPECT_THAT(rows->told, IsEmpty());
}

}  // namespace
}  // namespace leafund
