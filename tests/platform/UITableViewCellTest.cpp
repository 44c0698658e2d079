#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/uikit/UITableViewCell.h"

namespace leafund {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(UITableViewCellTest, ASubtitleCellHoldsAPictureATitleAndALineBelowInItsContent) {
  const UITableViewCell cell(UITableViewCellStyle::Subtitle, "abc", "campaignSegue");
  EXPECT_EQ(cell.reuseIdentifier(), "abc");
  EXPECT_EQ(cell.segueIdentifier(), "campaignSegue");
  EXPECT_THAT(cell.subviews(), ElementsAre(cell.contentView()));
  EXPECT_THAT(cell.contentView()->subviews(),
              ElementsAre(cell.imageView(), cell.textLabel(), cell.detailTextLabel()));
}

TEST(UITableViewCellTest, ATextOnlyCellHoldsATitleAndALineBelow) {
  const UITableViewCell cell(UITableViewCellStyle::TextOnly, "text");
  EXPECT_EQ(cell.imageView(), nullptr);
  EXPECT_THAT(cell.contentView()->subviews(),
              ElementsAre(cell.textLabel(), cell.detailTextLabel()));
}

TEST(UITableViewCellTest, ABareCellHoldsItsContentViewAlone) {
  const UITableViewCell cell(UITableViewCellStyle::Bare, "bare");
  EXPECT_THAT(cell.subviews(), ElementsAre(cell.contentView()));
  EXPECT_THAT(cell.contentView()->subviews(), IsEmpty());
  EXPECT_EQ(cell.imageView(), nullptr);
  EXPECT_EQ(cell.textLabel(), nullptr);
  EXPECT_EQ(cell.detailTextLabel(), nullptr);
  EXPECT_EQ(cell.segueIdentifier(), "");
}

}  // namespace
}  // namespace leafund
