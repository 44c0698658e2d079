#include <gtest/gtest.h>

#include <limits>

#include "model/Catalogue.h"
#include "platform/headless/HeadlessHost.h"
#include "screens/campaign/ConfirmPageVC.h"
#include "screens/campaign/OneCampaignViewController.h"
#include "screens/campaign/ThankYouVC.h"
#include "tests/support/CatalogueRecords.h"
#include "tests/support/Screens.h"

namespace leafund {
namespace {

using Segues = std::vector<std::string>;

class ConfirmPageTest : public testing::Test {
 protected:
  // A campaign with a goal of 100 and 40 raised stands at the position.
  void confirm(float amount, std::ptrdiff_t position = 2) {
    campaign = otherCampaigns()[static_cast<std::size_t>(position)];
    campaign->setTotalFunding(100);
    campaign->setCurrFunding(40);
    page->campaignNum = position;
    page->dollarsDonated = amount;
    page->view();
  }
  // Of what the scene says beside the logic; null where nothing is seen.
  const std::string* words(const std::string& name) {
    for (const auto& view : page->view()->subviews()) {
      if (view->name() != name || view->hidden()) continue;
      return &static_cast<const UILabel&>(*view).text();
    }
    return nullptr;
  }
  void yes() { page->yesButton->sendActionsForControlEvents(UIControlEvent::TouchUpInside); }

  RecordedScreen<ConfirmPageVC> page{"ConfirmPageVC"};
  std::shared_ptr<CampaignClass> campaign;
};

TEST_F(ConfirmPageTest, AnAmountThatReachesTheGoalStoresItAndMovesTheCampaignToTheFrontOfFunded) {
  confirm(60);
  yes();
  EXPECT_EQ(campaign->currFunding(), 100.0F);
  EXPECT_EQ(otherCampaigns().size(), 6U);
  EXPECT_EQ(otherCampaigns()[2]->title(), "No New Clothes!");
  EXPECT_EQ(campaignsIFunded().size(), 4U);
  EXPECT_EQ(campaignsIFunded()[0], campaign);
  EXPECT_EQ(campaignsIFunded()[1]->title(), "Compost for Christ!");
  EXPECT_EQ(page->segues, Segues{"yesSegue"});
  EXPECT_EQ(page->lastSender, page.screen);
}

TEST_F(ConfirmPageTest, ItNamesWhatIsPledgedAndTheCampaignItIsFor) {
  confirm(12.5);
  ASSERT_NE(words("amount"), nullptr);
  EXPECT_EQ(*words("amount"), "$12.50");
  ASSERT_NE(words("campaignName"), nullptr);
  EXPECT_EQ(*words("campaignName"), "Solar Panel House");
}

TEST_F(ConfirmPageTest, TheLargestNegativeAmountIsNamedInFull) {
  confirm(-std::numeric_limits<float>::max());
  ASSERT_NE(words("amount"), nullptr);
  EXPECT_EQ(*words("amount"), "$-340282346638528859811704183484516925440.00");
}

TEST_F(ConfirmPageTest, WithoutAnAmountNoneIsNamed) {
  page->campaignNum = 0;
  EXPECT_EQ(words("amount"), nullptr);
}

TEST_F(ConfirmPageTest, AFullyFundedCampaignIsShownAsFundedAfterwards) {
  confirm(60);
  yes();
  HeadlessHost host;
  const auto detail = makeScreen<OneCampaignViewController>("OneCampaignViewController");
  detail->campaignNum = 0;
  detail->campaignSendingYou = "campaignsIFunded";
  detail->view();
  EXPECT_EQ(detail->labelAboveSlider->text(), "Funded!");
}

TEST_F(ConfirmPageTest, ASmallerAmountIsAddedAndTheCampaignStillLeavesTheBrowseList) {
  confirm(10);
  yes();
  EXPECT_EQ(campaign->currFunding(), 50.0F);
  EXPECT_EQ(otherCampaigns().size(), 6U);
  EXPECT_EQ(campaignsIFunded()[0], campaign);
}

TEST_F(ConfirmPageTest, AnAmountBeyondTheGoalIsCappedAtIt) {
  confirm(61);
  yes();
  EXPECT_EQ(campaign->currFunding(), 100.0F);
}

TEST_F(ConfirmPageTest, TheLastCampaignLeavesTheOthersInOrder) {
  auto before = otherCampaigns();
  confirm(10, 6);
  yes();
  before.pop_back();
  EXPECT_EQ(otherCampaigns(), before);
}

TEST_F(ConfirmPageTest, DecliningChangesNothingAndPerformsItsSegue) {
  confirm(60);
  const auto records = catalogueRecords();
  page->noButton->sendActionsForControlEvents(UIControlEvent::TouchUpInside);
  EXPECT_EQ(catalogueRecords(), records);
  EXPECT_EQ(page->segues, Segues{"noSegue"});
  EXPECT_EQ(page->lastSender, page.screen);
}

TEST_F(ConfirmPageTest, AnAmountThatIsNotANumberStoresTheGoalAndMovesTheCampaign) {
  confirm(std::numeric_limits<float>::quiet_NaN());
  yes();
  EXPECT_EQ(campaign->currFunding(), 100.0F);
  EXPECT_EQ(campaignsIFunded()[0], campaign);
}

TEST_F(ConfirmPageTest, ANegativeAmountLowersWhatWasRaisedWithoutAFloor) {
  confirm(-50);
  yes();
  EXPECT_EQ(campaign->currFunding(), -10.0F);
}

TEST_F(ConfirmPageTest, ACampaignThatIsFundedAlreadyIsInsertedAgain) {
  confirm(10);
  campaignsIFunded().push_back(campaign);
  yes();
  EXPECT_EQ(campaignsIFunded().front(), campaign);
  EXPECT_EQ(campaignsIFunded().back(), campaign);
}

TEST_F(ConfirmPageTest, ThePledgeIsBookedBeforeTheSegue) {
  confirm(60);
  bool booked = false;
  page->onSegue = [&] {
    booked = campaign->currFunding() == 100.0F && otherCampaigns().size() == 6U &&
             campaignsIFunded()[0] == campaign;
  };
  yes();
  EXPECT_TRUE(booked);
}

TEST_F(ConfirmPageTest, EveryPressOfYesBooksAgain) {
  confirm(10);
  yes();
  yes();
  EXPECT_EQ(campaign->currFunding(), 60.0F);
  EXPECT_EQ(otherCampaigns().size(), 5U);  // whatever stood at the position next
  EXPECT_EQ(campaignsIFunded().size(), 5U);
}

TEST_F(ConfirmPageTest, LoadingWritesThePositionAndHidesTheBackButton) {
  testing::internal::CaptureStdout();
  confirm(10);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "2\n");
  EXPECT_TRUE(page->navigationItem().hidesBackButton());
}

TEST_F(ConfirmPageTest, TheThankYouScreenLearnsWhoSentItWhateverTheIdentifier) {
  for (const auto* identifier : {"yesSegue", "noSegue"}) {
    const auto thanks = makeScreen<ThankYouVC>("ThankYouVC");
    UIStoryboardSegue segue(identifier, thanks);
    page->prepareForSegueSender(segue, page.screen);
    EXPECT_EQ(thanks->pageFrom, "ConfirmPageVC");
  }
}

TEST_F(ConfirmPageTest, AnotherDestinationReceivesNothing) {
  const auto other = makeScreen<ConfirmPageVC>("ConfirmPageVC");
  UIStoryboardSegue segue("noSegue", other);
  page->prepareForSegueSender(segue, page.screen);
  EXPECT_EQ(other->campaignNum, std::nullopt);
  EXPECT_EQ(other->dollarsDonated, std::nullopt);
}

using ConfirmPageDeathTest = ConfirmPageTest;

TEST_F(ConfirmPageDeathTest, AnAbsentPositionIsFatalOnLoading) {
  EXPECT_DEATH(page->view(), "Leafund stopped: ConfirmPageVC: no campaign position was given");
}

TEST_F(ConfirmPageDeathTest, APositionOutsideTheBrowseListIsFatalOnLoading) {
  page->campaignNum = 7;
  EXPECT_DEATH(page->view(), "ConfirmPageVC: position 7 is outside a list of 7");
  page->campaignNum = -1;
  EXPECT_DEATH(page->view(), "ConfirmPageVC: position -1 is outside a list of 7");
}

TEST_F(ConfirmPageDeathTest, APositionThatIsGoneWhenYesIsPressedIsFatal) {
  confirm(10, 6);
  otherCampaigns().pop_back();
  EXPECT_DEATH(yes(), "ConfirmPageVC: position 6 is outside a list of 6");
  page->campaignNum.reset();
  EXPECT_DEATH(yes(), "ConfirmPageVC: no campaign position was given");
}

TEST_F(ConfirmPageDeathTest, AnAbsentAmountIsFatalOnYes) {
  confirm(10);
  page->dollarsDonated.reset();
  EXPECT_DEATH(yes(), "ConfirmPageVC: no amount was given");
}

}  // namespace
}  // namespace leafund
