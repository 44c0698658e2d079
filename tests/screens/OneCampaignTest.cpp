#include <gtest/gtest.h>

#include <limits>

#include "screens/campaign/ConfirmPageVC.h"
#include "screens/campaign/OneCampaignViewController.h"
#include "screens/campaign/ThankYouVC.h"
#include "screens/campaign/UpdatePageVC.h"
#include "tests/screens/OneCampaignFixture.h"

namespace leafund {
namespace {

TEST_F(OneCampaignTest, ShowsTheCampaignOfTheListAndPosition) {
  testing::internal::CaptureStdout();
  open("otherCampaigns", 1);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "1\n");
  EXPECT_EQ(detail->campaign, otherCampaigns()[1]);
  EXPECT_EQ(detail->campaignTitle->text(), "Biking to Work!");
  EXPECT_EQ(detail->campaignCreator->text(), "Tamsin");
  EXPECT_EQ(detail->campaignText->text(), otherCampaigns()[1]->campaignDescription());
  EXPECT_EQ(detail->desiredFund->text(), "$200.00");
  EXPECT_EQ(detail->currentFund->text(), "$67.00");
  EXPECT_EQ(detail->slider->progress(), 67.0F / 200.0F);
  EXPECT_EQ(detail->slider->animatedFrom(), 0.0F);
}

TEST_F(OneCampaignTest, LoadedAgainTheBarFillsFromNothingOnceMore) {
  openWith(200, 50);
  detail->viewDidLoad();
  EXPECT_EQ(detail->slider->animatedFrom(), 0.0F);
  EXPECT_EQ(detail->slider->progress(), 0.25F);
}

TEST_F(OneCampaignTest, ACampaignThatIsNotFundedHidesUpdatesAndErrorAndShowsItsSums) {
  open("otherCampaigns", 0);
  EXPECT_TRUE(detail->campaignUpdates->hidden());
  EXPECT_TRUE(detail->errorLabel->hidden());
  EXPECT_FALSE(detail->slider->hidden());
  EXPECT_FALSE(detail->desiredFund->hidden());
  EXPECT_FALSE(detail->currentFund->hidden());
  EXPECT_FALSE(detail->FundButton->hidden());
  EXPECT_FALSE(detail->dollarAmountField->hidden());
}

TEST_F(OneCampaignTest, AFundedCampaignShowsFundedAndUpdatesAndHidesBarAndSums) {
  open("campaignsIFunded", 0);
  EXPECT_EQ(detail->labelAboveSlider->text(), "Funded!");
  EXPECT_FALSE(detail->campaignUpdates->hidden());
  EXPECT_TRUE(detail->slider->hidden());
  EXPECT_TRUE(detail->desiredFund->hidden());
  EXPECT_TRUE(detail->currentFund->hidden());
  EXPECT_EQ(detail->slider->progress(), 1.0F);  // the hidden bar is still given its share
}

TEST_F(OneCampaignTest, OwnAndFundedCampaignsCannotBeFundedFromHere) {
  for (const auto* list : {"campaignsIFunded", "myUnfundedCampaigns"}) {
    RecordedScreen<OneCampaignViewController> screen("OneCampaignViewController");
    screen->campaignSendingYou = list;
    screen->campaignNum = 0;
    screen->view();
    EXPECT_TRUE(screen->FundButton->hidden()) << list;
    EXPECT_TRUE(screen->dollarAmountField->hidden()) << list;
  }
}

TEST_F(OneCampaignTest, FramesThePictureRoundAndTheTextWithALine) {
  open("otherCampaigns", 0);
  const CALayer& picture = std::as_const(*detail->campaignImage.get()).layer();
  EXPECT_EQ(picture.cornerRadius(), 65.0);
  EXPECT_EQ(picture.borderWidth(), 0.5);
  EXPECT_EQ(picture.borderColor(), UIColor::blackColor().CGColor());
  EXPECT_TRUE(picture.masksToBounds());
  const CALayer& text = std::as_const(*detail->campaignText.get()).layer();
  EXPECT_EQ(text.borderWidth(), 1.0);
  EXPECT_EQ(text.borderColor(), UIColor::blackColor().CGColor());
  EXPECT_EQ(detail->campaignText->scrollsToTop(), 1U);
}

TEST_F(OneCampaignTest, AGoalOfZeroWithNothingRaisedCountsAsFunded) {
  openWith(0, 0);
  EXPECT_EQ(detail->labelAboveSlider->text(), "Funded!");
  EXPECT_NE(detail->slider->progress(), detail->slider->progress());  // not a number
  EXPECT_EQ(detail->desiredFund->text(), "$0.00");
}

TEST_F(OneCampaignTest, SumsThatAreNotANumberAreNotEqualAndSoNotFunded) {
  constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();
  openWith(kNotANumber, kNotANumber);
  EXPECT_EQ(detail->labelAboveSlider->text(),
            sceneText("OneCampaignViewController", "labelAboveSlider"));
  EXPECT_FALSE(detail->slider->hidden());
}

TEST_F(OneCampaignTest, EveryGoalIsWrittenOut) {
  const std::pair<float, const char*> goals[] = {
      {0.0F, "$0.00"},
      {-5.0F, "$-5.00"},
      {std::numeric_limits<float>::quiet_NaN(), "$nan"},
      {std::numeric_limits<float>::infinity(), "$inf"},
      {3.4e38F, "$339999995214436424907732413799364296704.00"}};
  for (const auto& [goal, text] : goals) {
    RecordedScreen<OneCampaignViewController> screen("OneCampaignViewController");
    otherCampaigns()[0]->setTotalFunding(goal);
    screen->campaignSendingYou = "otherCampaigns";
    screen->campaignNum = 0;
    screen->view();
    EXPECT_EQ(screen->desiredFund->text(), text);
    EXPECT_EQ(screen->currentFund->text(), "$120.00");
    EXPECT_GE(screen->slider->shownProgress(), 0.0F) << text;
    EXPECT_LE(screen->slider->shownProgress(), 1.0F) << text;
  }
}

TEST_F(OneCampaignTest, WithoutAListNameThePresentersCampaignIsShownAndCannotBeFunded) {
  testing::internal::CaptureStdout();
  detail->campaign = campaignsIFunded()[2];
  detail->view();
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "nil\n");
  EXPECT_EQ(detail->campaignTitle->text(), "Carpool for Salvation");
  EXPECT_TRUE(detail->FundButton->hidden());
}

TEST_F(OneCampaignTest, AListNameReplacesThePresentersCampaign) {
  for (const auto* list : {"otherCampaigns", "campaignsIFunded", "myUnfundedCampaigns"}) {
    RecordedScreen<OneCampaignViewController> screen("OneCampaignViewController");
    screen->campaign = otherCampaigns()[3];
    screen->campaignSendingYou = list;
    screen->campaignNum = 1;
    screen->view();
    EXPECT_EQ(screen->campaign, (*campaignListNamed(list))[1]);
    EXPECT_EQ(screen->campaignTitle->text(), (*campaignListNamed(list))[1]->title());
  }
}

TEST_F(OneCampaignTest, AReuseIdentifierNamesNoListAndKeepsThePresentersCampaign) {
  detail->campaign = campaignsIFunded()[2];
  detail->campaignSendingYou = "MyCampaigns";
  detail->view();
  EXPECT_EQ(detail->campaign, campaignsIFunded()[2]);
  EXPECT_TRUE(detail->dollarAmountField->hidden());
}

TEST_F(OneCampaignTest, APictureThatArrivesIsShownAtItsOwnSize) {
  open("otherCampaigns", 0);
  ASSERT_EQ(host.fetches(), std::vector{otherCampaigns()[0]->photo()});
  host.answer(0, pictureBody(640, 480));
  EXPECT_EQ(detail->campaignImage->image()->size(), (CGSize{640, 480}));
}

TEST_F(OneCampaignTest, ABodyThatIsNoPictureEmptiesThePicture) {
  open("otherCampaigns", 0);
  detail->campaignImage->setImage(
      UIImage::initWithData(std::make_shared<std::string>(pictureBody(8, 8))));
  host.answer(0, "<html>404</html>", 404);
  EXPECT_EQ(detail->campaignImage->image(), nullptr);
}

TEST_F(OneCampaignTest, ADownloadThatFailsShowsNothingAndSaysNothing) {
  open("otherCampaigns", 0);
  testing::internal::CaptureStdout();
  host.fail(0);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(detail->campaignImage->image(), nullptr);
}

TEST_F(OneCampaignTest, TheDownloadKeepsTheScreenUntilItIsApplied) {
  open("otherCampaigns", 0);
  const std::weak_ptr<UIViewController> left = detail.screen;
  detail.screen.reset();
  EXPECT_FALSE(left.expired());
  host.answer(0, pictureBody(640, 480));
  EXPECT_TRUE(left.expired());
}

TEST_F(OneCampaignTest, TheUpdatePageLearnsPositionAndListAlsoWhenAbsent) {
  detail->campaignNum = 1;
  detail->campaignSendingYou = "campaignsIFunded";
  const auto update = makeScreen<UpdatePageVC>("UpdatePageVC");
  UIStoryboardSegue segue("any", update);
  detail->prepareForSegueSender(segue, nullptr);
  EXPECT_EQ(update->campaignNum, 1);
  EXPECT_EQ(update->campaignSendingYou, "campaignsIFunded");
  detail->campaignNum.reset();
  detail->campaignSendingYou.reset();
  detail->prepareForSegueSender(segue, nullptr);
  EXPECT_EQ(update->campaignNum, std::nullopt);
  EXPECT_EQ(update->campaignSendingYou, std::nullopt);
}

TEST_F(OneCampaignTest, TheConfirmationLearnsAmountAndPosition) {
  detail->campaignNum = 4;
  detail->dollarsDonated = 12.5F;
  const auto confirm = makeScreen<ConfirmPageVC>("ConfirmPageVC");
  UIStoryboardSegue segue("any", confirm);
  detail->prepareForSegueSender(segue, nullptr);
  EXPECT_EQ(confirm->campaignNum, 4);
  EXPECT_EQ(confirm->dollarsDonated, 12.5F);
}

TEST_F(OneCampaignTest, AnyOtherDestinationLearnsNothing) {
  const auto thanks = makeScreen<ThankYouVC>("ThankYouVC");
  UIStoryboardSegue segue("campaignFundedSegue", thanks);
  detail->prepareForSegueSender(segue, nullptr);
  EXPECT_EQ(thanks->pageFrom, std::nullopt);
}

TEST_F(OneCampaignTest, TheUpdatesButtonPerformsUpdatesSegueWithTheScreenAsSender) {
  open("campaignsIFunded", 0);
  detail->campaignUpdates->sendActionsForControlEvents(UIControlEvent::TouchUpInside);
  EXPECT_EQ(detail->segues, std::vector<std::string>{"updatesSegue"});
  EXPECT_EQ(detail->lastSender, detail.screen);
}

}  // namespace
}  // namespace leafund
