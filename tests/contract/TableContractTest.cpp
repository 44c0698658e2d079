#include <algorithm>

#include "tests/contract/ContractTest.h"

namespace leafund {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double kRow = 160;

class TableContract : public ContractTest {
 protected:
  TableContract() {
    signIn();
    browse = std::dynamic_pointer_cast<WatchedBrowse>(shown());
  }
  void scroll(double offset) {
    application->scroll(table(), offset);
    settle();
  }
  std::vector<std::ptrdiff_t> shownRows() {
    std::vector<std::ptrdiff_t> rows;
    for (const auto& [row, cell] : table()->visibleCells()) rows.push_back(row);
    return rows;
  }
  // The rows of which a part lies in the viewport, by their place alone.
  std::vector<std::ptrdiff_t> rowsInSight() {
    std::vector<std::ptrdiff_t> rows;
    const double top = table()->contentOffset().y;
    const double bottom = top + table()->frame().height;
    for (std::ptrdiff_t row = 0; row < 7; ++row) {
      const double rowTop = kRow * static_cast<double>(row);
      if (rowTop < bottom && rowTop + kRow > top) rows.push_back(row);
    }
    return rows;
  }
  std::shared_ptr<WatchedBrowse> browse;
};

TEST_F(TableContract, ExactlyTheRowsInSightAreShownEachToldOfBeforeItIsShown) {
  EXPECT_EQ(shownRows(), rowsInSight());
  std::vector<std::string> expected;
  for (const auto row : rowsInSight()) {
    expected.push_back("cell " + std::to_string(row));
    expected.push_back("display " + std::to_string(row));
  }
  EXPECT_EQ(browse->told, expected);
}

TEST_F(TableContract, WhereverItIsScrolledExactlyTheRowsInSightAreShown) {
  for (const double offset : {1.0, 80.0, 160.0, 161.0, 300.0, 10'000.0, 0.0}) {
    scroll(offset);
    EXPECT_EQ(shownRows(), rowsInSight()) << offset;
  }
}

TEST_F(TableContract, ScrollingStopsAtBothEnds) {
  scroll(10'000);
  EXPECT_EQ(table()->contentOffset().y, std::max(0.0, 7 * kRow - table()->frame().height));
  scroll(-10);
  EXPECT_EQ(table()->contentOffset().y, 0);
}

TEST_F(TableContract, TheCountIsAskedOnceAnAppearanceAndNeverByScrolling) {
  EXPECT_EQ(browse->countQuestions, 1);
  scroll(500);
  scroll(0);
  EXPECT_EQ(browse->countQuestions, 1);
  tap("newsTab");
  tap("browseTab");
  settle();
  EXPECT_EQ(browse->countQuestions, 2);
}

TEST_F(TableContract, CellsAreReusedAndKeepWhatTheyHold) {
  scroll(10'000);
  scroll(0);
  scroll(10'000);
  const auto most = static_cast<std::size_t>(table()->frame().height / kRow) + 2;
  EXPECT_LE(table()->subviews().size(), most);
  std::size_t cards = 0;
  for (const auto& view : table()->subviews()) {
    // Beside a picture and two labels, a card a showing.
    cards += std::static_pointer_cast<UITableViewCell>(view)->contentView()->subviews().size() - 3;
  }
  EXPECT_EQ(cards, browse->told.size() / 2);
}

TEST_F(TableContract, AReloadKeepsTheCellsInRowOrder) {
  const auto before = table()->visibleCells();
  tap("newsTab");
  tap("browseTab");
  settle();
  EXPECT_EQ(table()->visibleCells(), before);
}

TEST_F(TableContract, AShownCellHasItsPathAndAForeignOneHasNone) {
  for (const auto& [row, cell] : table()->visibleCells()) {
    EXPECT_EQ(table()->indexPathForCell(cell), (NSIndexPath{row, 0}));
  }
  const auto stray = std::make_shared<UITableViewCell>(UITableViewCellStyle::Subtitle, "abc");
  EXPECT_EQ(table()->indexPathForCell(stray), std::nullopt);
}

TEST_F(TableContract, RowsAreAsHighAsTheDelegateSaysAndAsWideAsTheTable) {
  EXPECT_EQ(table()->rowHeight(), 100);
  for (const auto& [row, cell] : table()->visibleCells()) {
    EXPECT_EQ(cell->frame(),
              (CGRect{0, kRow * static_cast<double>(row), table()->frame().width, kRow}));
  }
}

TEST_F(TableContract, ACoveredTableDoesNotScroll) {
  const auto covered = table();
  tapRow(0);
  settle();
  browse->told.clear();
  application->scroll(covered, 300);
  settle();
  EXPECT_EQ(covered->contentOffset().y, 0);
  EXPECT_THAT(browse->told, IsEmpty());
}

}  // namespace
}  // namespace leafund
