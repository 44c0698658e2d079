#include <gtest/gtest.h>

#include "model/Catalogue.h"
#include "model/PictureHost.h"
#include "platform/headless/HeadlessHost.h"
#include "screens/campaign/UpdatePageVC.h"
#include "tests/support/Pictures.h"
#include "tests/support/Screens.h"

namespace leafund {
namespace {

class UpdatePageTest : public testing::Test {
 protected:
  void open(std::optional<std::string> listName, std::optional<std::ptrdiff_t> position) {
    page->campaignSendingYou = std::move(listName);
    page->campaignNum = position;
    page->view();
  }

  HeadlessHost host;
  std::shared_ptr<UpdatePageVC> page = makeScreen<UpdatePageVC>("UpdatePageVC");
};

TEST_F(UpdatePageTest, WithoutAnUpdateItSaysSoAndRequestsThePlaceholder) {
  open("otherCampaigns", 3);
  EXPECT_EQ(page->test->text(), "No New Clothes!");
  EXPECT_EQ(page->updateOneText->text(), "No updates have been made yet!");
  EXPECT_EQ(page->updateOneDate->text(), "");
  EXPECT_EQ(host.fetches(), std::vector{placeholderPictureAddress()});
}

TEST_F(UpdatePageTest, AnUpdateWithoutADateShowsItsTextAndItsOwnPicture) {
  auto& campaign = *myUnfundedCampaigns()[1];
  campaign.setUpdateOneText("Glip!");
  campaign.setUpdateOnePhoto("http://pictures.example/glip.jpg");
  open("myUnfundedCampaigns", 1);
  EXPECT_EQ(page->updateOneText->text(), "Glip!");
  EXPECT_EQ(page->updateOneDate->text(), "");
  EXPECT_EQ(host.fetches(), std::vector<std::string>{"http://pictures.example/glip.jpg"});
}

TEST_F(UpdatePageTest, TheFirstFundedSeedShowsItsDateTextAndPicture) {
  writeSeedUpdates();
  const auto& campaign = *campaignsIFunded()[0];
  open("campaignsIFunded", 0);
  EXPECT_EQ(page->test->text(), "Compost for Christ!");
  EXPECT_EQ(page->updateOneDate->text(), "December 1");
  EXPECT_EQ(page->updateOneText->text(), campaign.updateOneText());
  EXPECT_EQ(host.fetches(), std::vector{campaign.updateOnePhoto()});
  host.answer(0, pictureBody(640, 480));
  EXPECT_EQ(page->updateOneImage->image()->size(), (CGSize{640, 480}));  // no resizing here
}

TEST_F(UpdatePageTest, TheListNameReplacesACampaignSetBefore) {
  page->campaign = otherCampaigns()[3];
  open("campaignsIFunded", 1);
  EXPECT_EQ(page->campaign, campaignsIFunded()[1]);
  EXPECT_EQ(page->test->text(), "Lights Out!");
}

TEST_F(UpdatePageTest, ADateAloneIsNoUpdate) {
  otherCampaigns()[0]->setUpdateOneDate("December 9");
  otherCampaigns()[0]->setUpdateOnePhoto("http://pictures.example/a.jpg");
  open("otherCampaigns", 0);
  EXPECT_EQ(page->updateOneDate->text(), "");
  EXPECT_EQ(host.fetches(), std::vector{placeholderPictureAddress()});
}

TEST_F(UpdatePageTest, ADownloadThatFailsLeavesThePictureEmptyWhileTheTextsStay) {
  writeSeedUpdates();
  open("campaignsIFunded", 1);
  host.fail(0);
  EXPECT_EQ(page->updateOneImage->image(), nullptr);
  EXPECT_EQ(page->updateOneDate->text(), "December 3");
  EXPECT_FALSE(page->updateOneText->text().empty());
}

TEST_F(UpdatePageTest, ABodyThatIsNoPictureShowsAnEmptyPicture) {
  open("otherCampaigns", 0);
  host.answer(0, "<html>error</html>", 500);
  EXPECT_EQ(page->updateOneImage->image(), nullptr);
}

TEST_F(UpdatePageTest, TheDownloadKeepsThePageUntilItIsApplied) {
  open("otherCampaigns", 0);
  const std::weak_ptr<UpdatePageVC> left = page;
  page.reset();
  EXPECT_FALSE(left.expired());
  host.answer(0, pictureBody(8, 8));
  EXPECT_TRUE(left.expired());
}

using UpdatePageDeathTest = UpdatePageTest;

TEST_F(UpdatePageDeathTest, APositionEqualToTheListsLengthIsFatal) {
  EXPECT_DEATH(open("campaignsIFunded", 3), "UpdatePageVC: position 3 is outside a list of 3");
}

TEST_F(UpdatePageDeathTest, AnAbsentPositionIsFatal) {
  EXPECT_DEATH(open("campaignsIFunded", std::nullopt), "no campaign position was given");
}

TEST_F(UpdatePageDeathTest, AnAbsentListNameAndOneThatNamesNoListAreFatal) {
  EXPECT_DEATH(open(std::nullopt, 0), "UpdatePageVC: there is no campaign to show");
  EXPECT_DEATH(open("MyCampaigns", 0), "UpdatePageVC: there is no campaign to show");
}

TEST_F(UpdatePageDeathTest, AnUpdateWithoutAPictureAddressIsFatal) {
  otherCampaigns()[0]->setUpdateOneText("Hello");
  EXPECT_DEATH(open("otherCampaigns", 0), "UpdatePageVC: not a URL: ");
}

}  // namespace
}  // namespace leafund
