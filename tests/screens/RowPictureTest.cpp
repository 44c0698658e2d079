#include <gtest/gtest.h>

#include <algorithm>

#include "platform/graphics/DrawingContext.h"
#include "platform/uikit/UITableViewCell.h"
#include "screens/lists/FundCampaignVC.h"
#include "tests/support/HeadlessApplication.h"
#include "tests/support/Pictures.h"
#include "tests/support/Screens.h"

namespace leafund {
namespace {

class RowPictureTest : public testing::Test {
 protected:
  void SetUp() override {
    app.signIn();
    app.tap("fundedTab");
    screen = app.shownAs<CampaignTableViewController>();
    while (app.host.fetches().front() != campaignsIFunded()[0]->photo()) app.host.fail(0);
  }
  std::shared_ptr<UITableViewCell> cell(std::ptrdiff_t row) {
    return screen->tableView()->visibleCells().at(row);
  }
  std::shared_ptr<const UIImage> picture(std::ptrdiff_t row) {
    return cell(row)->imageView()->image();
  }

  HeadlessApplication app;
  std::shared_ptr<CampaignTableViewController> screen;
};

TEST_F(RowPictureTest, APictureIsRedrawnAt128By128AtTheScreensScaleStretchedNotCropped) {
  app.host.answer(0, pictureBody(640, 480));
  ASSERT_NE(picture(0), nullptr);
  EXPECT_EQ(picture(0)->size(), (CGSize{128, 128}));
  EXPECT_EQ(picture(0)->scale(), 2);
  ASSERT_NE(picture(0)->drawing(), nullptr);
  const auto& strokes = picture(0)->drawing()->strokes;
  ASSERT_EQ(strokes.size(), 1U);
  EXPECT_EQ(strokes[0].rect, (CGRect{0, 0, 128, 128}));
  EXPECT_EQ(strokes[0].image->size(), (CGSize{640, 480}));
  EXPECT_FALSE(picture(0)->drawing()->opaque);
}

TEST_F(RowPictureTest, AfterThreeRedrawingsThreeDrawingContextsRemain) {
  const auto before = drawingContextCount();
  for (int row = 0; row < 3; ++row) app.host.answer(0, pictureBody(640, 480));
  EXPECT_EQ(drawingContextCount(), before + 3);
}

TEST_F(RowPictureTest, AHostThatCannotBeReachedLeavesThePictureAsItWas) {
  app.host.answer(0, pictureBody(640, 480));
  const auto before = picture(0);
  app.tap("newsTab");
  app.tap("fundedTab");
  testing::internal::CaptureStdout();
  while (!app.host.fetches().empty()) app.host.fail(0);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(picture(0), before);
}

TEST_F(RowPictureTest, AnEmptyBodyIsNoBodyAndChangesNothing) {
  app.host.answer(0, "");
  EXPECT_EQ(picture(0), nullptr);
}

TEST_F(RowPictureTest, ScrollingARowOutAndInStartsASecondDownloadOfItsPicture) {
  app.tap("browseTab");
  app.scroll(7 * 160.0);
  const auto address = otherCampaigns()[0]->photo();
  const auto count = [&] {
    const auto fetches = app.host.fetches();
    return std::count(fetches.begin(), fetches.end(), address);
  };
  const auto before = count();
  app.scroll(0);
  EXPECT_EQ(count(), before + 1);
}

TEST_F(RowPictureTest, ARowShownTwiceShowsThePictureOfTheDownloadThatEndsLast) {
  app.tap("newsTab");
  app.tap("fundedTab");
  // Three rows twice: the first row's downloads stand at 0 and 3.
  ASSERT_EQ(app.host.fetches().size(), 6U);
  ASSERT_EQ(app.host.fetches()[3], campaignsIFunded()[0]->photo());
  app.host.answer(3, pictureBody(20, 10));
  app.host.answer(0, pictureBody(30, 10));
  EXPECT_EQ(picture(0)->drawing()->strokes[0].image->size(), (CGSize{30, 10}));
}

TEST_F(RowPictureTest, AReusedCellTakesTheEarlierRowsPicture) {
  const auto first = cell(0);
  auto& funded = campaignsIFunded();
  funded.insert(funded.begin(), otherCampaigns()[0]);
  app.tap("newsTab");
  app.tap("fundedTab");
  ASSERT_EQ(cell(0), first);
  ASSERT_EQ(first->textLabel()->text(), "Vegetarian for PETA");
  ASSERT_EQ(app.host.fetches()[0], funded[1]->photo());
  app.host.answer(0, pictureBody(30, 10));
  EXPECT_EQ(picture(0)->drawing()->strokes[0].image->size(), (CGSize{30, 10}));
}

TEST(RowPictureOwnerTest, ADownloadKeepsItsCellAndItsScreenUntilItEnds) {
  HeadlessHost host;
  auto screen = makeScreen<CampaignTableViewController>("OtherCampaignsTableViewController");
  screen->view();
  auto cell = screen->tableViewCellForRowAtIndexPath(*screen->tableView(), {0, 0});
  const std::weak_ptr<UITableViewCell> watchedCell = std::exchange(cell, nullptr);
  const std::weak_ptr<CampaignTableViewController> watchedScreen = std::exchange(screen, nullptr);
  EXPECT_FALSE(watchedCell.expired());
  EXPECT_FALSE(watchedScreen.expired());
  host.completeWithoutDraining(0, std::make_shared<std::string>(pictureBody(8, 8)));
  EXPECT_FALSE(watchedCell.expired());  // the apply step still waits in the main queue
  host.drainMainQueue();
  EXPECT_TRUE(watchedCell.expired());
  EXPECT_TRUE(watchedScreen.expired());
}

TEST(RowPictureOwnerTest, TheDownloadCallsTheResizeOfASubclassWhileTheCellShowsThePictureAsItCame) {
  struct Counting : FundCampaignVC {
    int calls = 0;
    std::shared_ptr<const UIImage> imageResizeWithImageSizeChange(
        const std::shared_ptr<const UIImage>& image, CGSize size) override {
      ++calls;
      EXPECT_EQ(size, (CGSize{128, 128}));
      EXPECT_EQ(tableView()->visibleCells().at(0)->imageView()->image(), image);
      return image;
    }
  };
  const auto storyboard =
      storyboardWith("FundCampaignVC", [] { return std::make_shared<Counting>(); });
  HeadlessApplication app(storyboard);
  app.signIn();
  app.tap("fundedTab");
  while (app.host.fetches().front() != campaignsIFunded()[0]->photo()) app.host.fail(0);
  app.host.answer(0, pictureBody(640, 480));
  EXPECT_EQ(app.shownAs<Counting>()->calls, 1);
  const auto& shown = app.shownAs<Counting>()->tableView()->visibleCells().at(0);
  EXPECT_EQ(shown->imageView()->image()->size(), (CGSize{640, 480}));
}

TEST(RowPictureOwnerTest, ACellWithoutAnImageViewIsBuiltAndIsFatalOnlyWhenItsPictureArrives) {
  HeadlessApplication app;
  app.signIn();
  const auto screen = app.shownAs<CampaignTableViewController>();
  while (!app.host.fetches().empty()) app.host.fail(0);
  screen->tableView()->registerPrototype("abc", [] {
    return std::make_shared<UITableViewCell>(UITableViewCellStyle::TextOnly, "abc");
  });
  const auto pooled = screen->tableViewCellForRowAtIndexPath(*screen->tableView(), {0, 0});
  EXPECT_EQ(pooled->textLabel()->text(), "Vegetarian for PETA");
  EXPECT_EQ(pooled->imageView(), nullptr);
  EXPECT_DEATH(app.host.answer(0, pictureBody(8, 8)), "the cell has no image view");
}

using RowPictureDeathTest = RowPictureTest;

TEST_F(RowPictureDeathTest, AnErrorPageInARowIsFatal) {
  EXPECT_DEATH(app.host.answer(0, "<html>not found</html>", 404),
               "FundCampaignVC: the downloaded body is not a picture");
}

TEST_F(RowPictureDeathTest, GarbageIsFatalToARowThatShowsAnOlderPicture) {
  app.host.answer(0, pictureBody(640, 480));
  app.tap("newsTab");
  app.tap("fundedTab");
  while (app.host.fetches().front() != campaignsIFunded()[0]->photo()) app.host.fail(0);
  ASSERT_NE(picture(0), nullptr);
  EXPECT_DEATH(app.host.answer(0, "<html>"), "the downloaded body is not a picture");
}

TEST_F(RowPictureDeathTest, GarbageIsFatalToARowOnATabThatWasLeftAndOnACoveredScreen) {
  app.tap("newsTab");
  EXPECT_DEATH(app.host.answer(0, "<html>"), "the downloaded body is not a picture");
  app.tap("fundedTab");
  app.tapRow(1);
  EXPECT_DEATH(app.host.answer(0, "<html>"), "the downloaded body is not a picture");
}

TEST_F(RowPictureDeathTest, GarbageIsFatalToACellInThePool) {
  const auto pooled = cell(2);
  app.application->resize({390, 200});
  ASSERT_TRUE(pooled->hidden());
  ASSERT_EQ(app.host.fetches()[2], campaignsIFunded()[2]->photo());
  EXPECT_DEATH(app.host.answer(2, "<html>"), "the downloaded body is not a picture");
}

TEST(RowPictureOwnerDeathTest, GarbageIsFatalToACellThatNoTableShows) {
  HeadlessHost host;
  auto screen = makeScreen<CampaignTableViewController>("OtherCampaignsTableViewController");
  screen->view();
  screen->tableViewCellForRowAtIndexPath(*screen->tableView(), {0, 0});
  screen.reset();
  EXPECT_DEATH(host.answer(0, "<html>"), "the downloaded body is not a picture");
}

TEST_F(RowPictureDeathTest, AResizeWhoseContextHoldsNoImageIsFatal) {
  const auto image = UIImage::initWithData(std::make_shared<std::string>(pictureBody(8, 8)));
  EXPECT_DEATH(screen->imageResizeWithImageSizeChange(image, {0, 128}),
               "the drawing context holds no image");
}

}  // namespace
}  // namespace leafund
