#include "screens/campaign/OneCampaignViewController.h"
#include "screens/lists/CampaignTableViewController.h"
#include "screens/lists/FundCampaignVC.h"
#include "screens/lists/MyProfileVC.h"
#include "tests/screens/CampaignTableFixture.h"

namespace leafund {
namespace {

using testing::ElementsAre;

TEST_F(CampaignTableTest, EachScreenShowsItsListInOrderWithItsCells) {
  open("browseTab");
  EXPECT_EQ(table->contentHeight(), 7 * 160.0);
  EXPECT_EQ(cell(0)->reuseIdentifier(), "abc");
  EXPECT_EQ(cell(0)->textLabel()->text(), "Vegetarian for PETA");
  EXPECT_EQ(cell(0)->detailTextLabel()->text(), otherCampaigns()[0]->shortDescription());
  app.tap("fundedTab");
  EXPECT_THAT(app.rowTitles(),
              ElementsAre("Compost for Christ!", "Lights Out!", "Carpool for Salvation"));
  app.tap("mineTab");
  EXPECT_THAT(app.rowTitles(), ElementsAre("Eco-Friendly Stove!", "Dine Out Less!"));
}

TEST_F(CampaignTableTest, ReuseIdentifiersAreEachScreensOwn) {
  open("fundedTab");
  EXPECT_EQ(cell(0)->reuseIdentifier(), "Funded");
  app.tap("mineTab");
  EXPECT_EQ(app.shownAs<CampaignTableViewController>()
                ->tableView()
                ->visibleCells()
                .at(0)
                ->reuseIdentifier(),
            "MyCampaigns");
}

TEST_F(CampaignTableTest, AnEmptyListIsOneSectionWithoutRowsAndStillWritesItsCount) {
  otherCampaigns().clear();
  testing::internal::CaptureStdout();
  open("browseTab");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "wren@example.org\n0\n");
  EXPECT_EQ(screen->numberOfSectionsInTableView(*table), 1);
  EXPECT_TRUE(table->visibleCells().empty());
  EXPECT_EQ(table->contentHeight(), 0);
}

TEST_F(CampaignTableTest, EachCallForTheCountWritesOneLineWhateverTheSection) {
  open("browseTab");
  testing::internal::CaptureStdout();
  EXPECT_EQ(screen->tableViewNumberOfRowsInSection(*table, 0), 7);
  EXPECT_EQ(screen->tableViewNumberOfRowsInSection(*table, 99), 7);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "7\n7\n");
}

TEST_F(CampaignTableTest, EveryRowIs160HighAlthoughTheTableIsTold100) {
  open("browseTab");
  EXPECT_EQ(table->rowHeight(), 100.0);
  EXPECT_EQ(screen->tableViewHeightForRowAtIndexPath(*table, {3, 0}), 160.0);
  EXPECT_EQ(cell(1)->frame(), (CGRect{0, 160, 358, 160}));
}

TEST_F(CampaignTableTest, AListIsAColumnInTheMiddle) {
  open("fundedTab");
  EXPECT_EQ(table->frame(), (CGRect{16, 0, 358, 724}));
  app.application->resize({1281, 844});
  EXPECT_EQ(table->frame(), (CGRect{280, 0, 720, 724}));  // at a whole point
  app.application->resize({20, 844});
  EXPECT_EQ(table->frame(), (CGRect{10, 0, 0, 724}));
}

TEST_F(CampaignTableTest, WhicheverTableAsksTheScreensOwnIsToldTheHeight) {
  open("browseTab");
  UITableView other;
  other.registerPrototype("abc", [] {
    return std::make_shared<UITableViewCell>(UITableViewCellStyle::Subtitle, "abc");
  });
  const double before = other.rowHeight();
  table->setRowHeight(7);
  screen->tableViewCellForRowAtIndexPath(other, {0, 0});
  EXPECT_EQ(table->rowHeight(), 100.0);
  EXPECT_EQ(other.rowHeight(), before);
  ASSERT_NE(before, 100.0);
}

TEST_F(CampaignTableTest, ThePictureIsFramedSmallAndRound) {
  open("browseTab");
  const auto& picture = *cell(0)->imageView();
  EXPECT_EQ(picture.frame(), (CGRect{0, 0, 65, 65}));
  const CALayer& layer = picture.layer();
  EXPECT_EQ(layer.borderWidth(), 0.5);
  EXPECT_EQ(layer.borderColor(), UIColor::blackColor().CGColor());
  EXPECT_EQ(layer.cornerRadius(), 65.0);
  EXPECT_TRUE(layer.masksToBounds());
}

TEST_F(CampaignTableTest, AShownRowHasAWhiteCardWithAFaintShadowBehindItsContent) {
  open("browseTab");
  const auto& content = *cell(0)->contentView();
  EXPECT_EQ(content.layer().backgroundColor(), UIColor::clearColor().CGColor());
  const auto& card = *content.subviews().front();
  EXPECT_EQ(card.frame(), (CGRect{0, 10, 358, 145}));
  const CALayer& layer = card.layer();
  EXPECT_EQ(layer.backgroundColor(), (CGColor{1, 1, 1, 1}));
  EXPECT_EQ(layer.cornerRadius(), 2.0);
  EXPECT_EQ(layer.shadowOffset(), (CGSize{-1, 1}));
  EXPECT_FLOAT_EQ(static_cast<float>(layer.shadowOpacity()), 0.2F);
  EXPECT_FALSE(layer.masksToBounds());
}

TEST_F(CampaignTableTest, ACellShownFiveTimesCarriesFiveCardsBehindItsContent) {
  open("fundedTab");
  const auto shown = cell(0);
  for (int showing = 1; showing < 5; ++showing) {
    app.tap("newsTab");
    app.tap("fundedTab");
  }
  ASSERT_EQ(cell(0), shown);
  const auto& subviews = shown->contentView()->subviews();
  ASSERT_EQ(subviews.size(), 5U + 3U);
  for (std::size_t card = 0; card < 5; ++card) {
    EXPECT_EQ(subviews[card]->frame(), (CGRect{0, 10, 358, 145}));
  }
  EXPECT_EQ(subviews[5], shown->imageView());
}

TEST_F(CampaignTableTest, ACardIsAsWideAsTheScreenWhenItsRowWasShown) {
  open("fundedTab");
  app.application->resize({568, 844});
  app.tap("newsTab");
  app.tap("fundedTab");
  const auto& subviews = cell(0)->contentView()->subviews();
  EXPECT_EQ(subviews[0]->frame(), (CGRect{0, 10, 536, 145}));
  EXPECT_EQ(subviews[1]->frame(), (CGRect{0, 10, 358, 145}));
}

TEST_F(CampaignTableTest, NoListScreenEverShowsABackButton) {
  for (const auto* name : {"OtherCampaignsTableViewController", "MyProfileVC", "FundCampaignVC"}) {
    const auto list = makeScreen<CampaignTableViewController>(name);
    list->view();
    EXPECT_TRUE(list->navigationItem().hidesBackButton()) << name;
  }
}

TEST_F(CampaignTableTest, ANewOwnCampaignIsTheFirstRowTheNextTimeTheScreenComesIntoView) {
  open("mineTab");
  auto& mine = myUnfundedCampaigns();
  mine.insert(mine.begin(), otherCampaigns()[3]);
  EXPECT_EQ(app.rowTitles().front(), "Eco-Friendly Stove!");  // not before
  app.tap("newsTab");
  app.tap("mineTab");
  EXPECT_EQ(app.rowTitles().front(), "No New Clothes!");
}

TEST_F(CampaignTableTest, TappingRow2OfFundedOpensItWithItsPositionAndList) {
  open("fundedTab");
  app.tapRow(2);
  const auto detail = app.shownAs<OneCampaignViewController>();
  ASSERT_NE(detail, nullptr);
  EXPECT_EQ(detail->campaignNum, 2);
  EXPECT_EQ(detail->campaignSendingYou, "campaignsIFunded");
}

TEST_F(CampaignTableTest, EachListPassesItsOwnName) {
  open("browseTab");
  app.tapRow(1);
  EXPECT_EQ(app.shownAs<OneCampaignViewController>()->campaignSendingYou, "otherCampaigns");
  app.application->goBack();
  app.tap("mineTab");
  app.tapRow(1);
  EXPECT_EQ(app.shownAs<OneCampaignViewController>()->campaignSendingYou, "myUnfundedCampaigns");
  EXPECT_EQ(app.shownAs<OneCampaignViewController>()->campaignNum, 1);
}

TEST_F(CampaignTableTest, TheSeguesIdentifierIsNotLookedAt) {
  open("browseTab");
  const auto detail = makeScreen<OneCampaignViewController>("OneCampaignViewController");
  UIStoryboardSegue segue("anything", detail);
  screen->prepareForSegueSender(segue, cell(3));
  EXPECT_EQ(detail->campaignNum, 3);
}

TEST_F(CampaignTableTest, AnotherDestinationReceivesNothing) {
  open("browseTab");
  const auto update = makeScreen<UpdatePageVC>("UpdatePageVC");
  UIStoryboardSegue segue("campaignSegue", update);
  screen->prepareForSegueSender(segue, cell(3));
  EXPECT_EQ(update->campaignNum, std::nullopt);
  EXPECT_EQ(update->campaignSendingYou, std::nullopt);
}

TEST_F(CampaignTableTest, TheUnreadOutletHoldsTheScreensOwnTable) {
  const auto mine = makeScreen<MyProfileVC>("MyProfileVC");
  mine->view();
  EXPECT_EQ(mine->fundedTable.get(), mine->tableView());
  const auto funded = makeScreen<FundCampaignVC>("FundCampaignVC");
  funded->view();
  EXPECT_EQ(funded->fundedTable.get(), funded->tableView());
}

}  // namespace
}  // namespace leafund
