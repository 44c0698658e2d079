#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/ProbeTable.h"

namespace leafund {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

using Cells = std::vector<std::shared_ptr<UITableViewCell>>;

Cells shownCells(ProbeTable& probe) {
  Cells cells;
  for (const auto& [row, cell] : probe.table().visibleCells()) cells.push_back(cell);
  return cells;
}

TEST(UITableViewReuseTest, TheDelegateHearsOfACellAfterItWasBuiltAndBeforeItIsShown) {
  ProbeTable probe(2);
  EXPECT_THAT(probe.rows->told, ElementsAre("cell 0", "display 0", "cell 1", "display 1"));
  std::vector<bool> shownAlready;
  probe.rows->onDisplay = [&](UITableView& table, const auto& cell) {
    shownAlready.push_back(table.indexPathForCell(cell).has_value());
    EXPECT_EQ(cell->frame().width, 390);
  };
  probe.reload();
  EXPECT_THAT(shownAlready, ElementsAre(false, false));
}

TEST(UITableViewReuseTest, AReloadGivesTheVisibleCellsBackInRowOrderBeforeItTakesAny) {
  ProbeTable probe(20);
  const Cells before = shownCells(probe);
  probe.reload();
  EXPECT_EQ(shownCells(probe), before);
  EXPECT_EQ(probe.table().subviews().size(), 3U);
}

TEST(UITableViewReuseTest, ACellThatWaitedInThePoolIsTakenBeforeThoseAReloadGivesBack) {
  ProbeTable probe(20);
  probe.scroll(250);
  const Cells four = shownCells(probe);  // of rows 2 to 5
  probe.scroll(300);                     // the cell of row 2 now waits
  probe.reload();
  EXPECT_THAT(shownCells(probe), ElementsAre(four[0], four[1], four[2]));
}

TEST(UITableViewReuseTest, AScrolledTableReusesTheCellThatLeftFirst) {
  ProbeTable probe(20);
  const Cells first = shownCells(probe);
  probe.scroll(200);  // rows 0 and 1 leave, rows 3 and 4 come
  EXPECT_EQ(probe.cell(2), first[2]);
  EXPECT_EQ(probe.cell(3), first[0]);
  EXPECT_EQ(probe.cell(4), first[1]);
  EXPECT_EQ(probe.table().subviews().size(), 3U);
}

TEST(UITableViewReuseTest, ScrollingAsksForNewlyVisibleRowsAloneFromTheTop) {
  ProbeTable probe(20);
  probe.scroll(500);
  probe.rows->told.clear();
  probe.scroll(400);
  EXPECT_THAT(probe.rows->told, ElementsAre("cell 4", "display 4"));
  probe.rows->told.clear();
  probe.scroll(200);
  EXPECT_THAT(probe.rows->told, ElementsAre("cell 2", "display 2", "cell 3", "display 3"));
}

TEST(UITableViewReuseTest, EachIdentifierHasAPoolOfItsOwn) {
  ProbeTable probe(20);
  probe.rows->identifier = [](std::ptrdiff_t row) { return row % 2 == 0 ? "row" : "other"; };
  probe.reload();
  EXPECT_EQ(probe.cell(0)->reuseIdentifier(), "row");
  EXPECT_EQ(probe.cell(1)->reuseIdentifier(), "other");
  const auto even = probe.cell(0);
  const auto odd = probe.cell(1);
  probe.scroll(200);  // rows 0 and 1 leave, rows 3 and 4 come
  EXPECT_EQ(probe.cell(3), odd);
  EXPECT_NE(probe.cell(4), odd);
  EXPECT_EQ(probe.cell(4)->reuseIdentifier(), "row");
}

TEST(UITableViewReuseTest, ReuseClearsNothing) {
  ProbeTable probe(20);
  const auto cell = probe.cell(0);
  const auto picture = UIImage::withDrawing({});
  cell->imageView()->setImage(picture);
  cell->textLabel()->setText("row 0");
  const auto card = std::make_shared<UIView>();
  cell->contentView()->addSubview(card);
  probe.scroll(300);
  ASSERT_EQ(probe.cell(3), cell);
  EXPECT_EQ(cell->imageView()->image(), picture);
  EXPECT_EQ(cell->textLabel()->text(), "row 0");
  EXPECT_EQ(card->superview(), cell->contentView().get());
}

TEST(UITableViewReuseTest, APooledCellIsHiddenAndComesBackIntoSight) {
  ProbeTable probe(20);
  const auto cell = probe.cell(0);
  probe.rows->count = 1;
  probe.scroll(100);
  EXPECT_FALSE(cell->hidden());
  probe.rows->count = 0;
  probe.reload();
  EXPECT_TRUE(cell->hidden());
  EXPECT_EQ(cell->superview(), &probe.table());
  probe.rows->count = 20;
  probe.reload();
  std::vector<bool> hidden;
  for (const auto& shown : shownCells(probe)) hidden.push_back(shown->hidden());
  EXPECT_THAT(hidden, Each(false));
}

TEST(UITableViewReuseTest, AShownCellHasItsPathAndAPooledOrForeignOneHasNone) {
  ProbeTable probe(20);
  const auto cell = probe.cell(1);
  EXPECT_EQ(probe.table().indexPathForCell(cell), (NSIndexPath{1, 0}));
  EXPECT_EQ(probe.table().indexPathForCell(nullptr), std::nullopt);
  EXPECT_EQ(probe.table().indexPathForCell(
                std::make_shared<UITableViewCell>(UITableViewCellStyle::Subtitle, "row")),
            std::nullopt);
  probe.rows->count = 1;
  probe.reload();
  EXPECT_EQ(probe.table().indexPathForCell(cell), std::nullopt);
}

TEST(UITableViewReuseTest, AReusedCellHasThePathOfItsNewRow) {
  ProbeTable probe(20);
  const auto cell = probe.cell(0);
  probe.scroll(300);
  EXPECT_EQ(probe.table().indexPathForCell(cell), (NSIndexPath{3, 0}));
}

TEST(UITableViewReuseTest, TheTableKeepsItsCellsAndLetsThemGoWithItself) {
  std::vector<std::weak_ptr<UIResponder>> cells;
  {
    ProbeTable probe(20);
    probe.scroll(150);
    for (const auto& cell : probe.table().subviews()) cells.push_back(cell->weak_from_this());
    EXPECT_EQ(cells.size(), 4U);
  }
  for (const auto& cell : cells) EXPECT_TRUE(cell.expired());
}

TEST(UITableViewReuseTest, TheTableKeepsNeitherItsDataSourceNorItsDelegate) {
  ProbeTable probe(20);
  const std::weak_ptr<ProbeRows> rows = probe.rows;
  probe.rows.reset();
  EXPECT_TRUE(rows.expired());
  probe.scroll(1000);
  EXPECT_THAT(probe.visibleRows(), IsEmpty());
}

TEST(UITableViewDeathTest, AnIdentifierWithoutAPrototypeIsFatal) {
  ProbeTable probe(1);
  EXPECT_DEATH(
      probe.table().dequeueReusableCellWithIdentifierForIndexPath("unknown", NSIndexPath{0, 0}),
      "Leafund stopped: table view: no prototype cell is named unknown");
}

}  // namespace
}  // namespace leafund
