#include "tests/screens/CampaignTableFixture.h"

namespace leafund {
namespace {

using CampaignTableDeathTest = CampaignTableTest;

TEST_F(CampaignTableDeathTest, ARowPastTheEndIsFatal) {
  open("browseTab");
  EXPECT_DEATH(screen->tableViewCellForRowAtIndexPath(*table, {7, 0}),
               "OtherCampaignsTableViewController: position 7 is outside a list of 7");
}

TEST_F(CampaignTableDeathTest, ARowBeforeTheFirstIsFatal) {
  open("browseTab");
  EXPECT_DEATH(screen->tableViewCellForRowAtIndexPath(*table, {-1, 0}),
               "OtherCampaignsTableViewController: position -1 is outside a list of 7");
}

TEST_F(CampaignTableDeathTest, ACellWithoutLabelsIsFatal) {
  open("browseTab");
  table->registerPrototype(
      "abc", [] { return std::make_shared<UITableViewCell>(UITableViewCellStyle::Bare, "abc"); });
  EXPECT_DEATH(screen->tableViewCellForRowAtIndexPath(*table, {0, 0}),
               "OtherCampaignsTableViewController: the cell has no text label");
  table->registerPrototype("abc", [] {
    return std::make_shared<UITableViewCell>(UITableViewCellStyle::TitleOnly, "abc");
  });
  EXPECT_DEATH(screen->tableViewCellForRowAtIndexPath(*table, {0, 0}),
               "OtherCampaignsTableViewController: the cell has no detail text label");
}

TEST_F(CampaignTableDeathTest, AnAddressThatIsNoUrlIsFatal) {
  open("browseTab");
  otherCampaigns()[0]->setPhoto("Error: Please Enter a URL");
  EXPECT_DEATH(screen->tableViewCellForRowAtIndexPath(*table, {0, 0}),
               "not a URL: Error: Please Enter a URL");
}

TEST_F(CampaignTableDeathTest, AMissingTableOrRootViewIsFatal) {
  open("browseTab");
  const auto shown = cell(0);
  screen->releaseView();
  EXPECT_DEATH(screen->viewWillAppear(false), "the table view is absent");
  EXPECT_DEATH(screen->tableViewCellForRowAtIndexPath(*table, {0, 0}), "the table view is absent");
  const auto update = makeScreen<UpdatePageVC>("UpdatePageVC");
  UIStoryboardSegue segue("campaignSegue", update);
  EXPECT_DEATH(screen->prepareForSegueSender(segue, shown), "the table view is absent");
  EXPECT_DEATH(screen->tableViewWillDisplayCellForRowAtIndexPath(*table, shown, {0, 0}),
               "the root view is absent");
}

TEST_F(CampaignTableDeathTest, ASegueWhoseSenderIsNoRowOfTheTableIsFatalWhateverTheDestination) {
  open("browseTab");
  const auto update = makeScreen<UpdatePageVC>("UpdatePageVC");
  UIStoryboardSegue segue("campaignSegue", update);
  EXPECT_DEATH(screen->prepareForSegueSender(segue, nullptr), "the segue's sender is not a row");
  EXPECT_DEATH(screen->prepareForSegueSender(segue, screen), "the segue's sender is not a row");
  const auto foreign = std::make_shared<UITableViewCell>(UITableViewCellStyle::Subtitle, "abc");
  EXPECT_DEATH(screen->prepareForSegueSender(segue, foreign), "a row of another table");
  const auto pooled = cell(3);
  app.application->resize({390, 400});
  EXPECT_DEATH(screen->prepareForSegueSender(segue, pooled), "a row of another table");
}

}  // namespace
}  // namespace leafund
