// How far a screen has come when it stops: the order of two steps is seen only there.
#include <gtest/gtest.h>

#include "model/Catalogue.h"
#include "platform/headless/HeadlessHost.h"
#include "screens/campaign/ConfirmPageVC.h"
#include "screens/campaign/OneCampaignViewController.h"
#include "screens/campaign/UpdatePageVC.h"
#include "tests/screens/CampaignTableFixture.h"
#include "tests/support/LastWords.h"

namespace leafund {
namespace {

const std::string kNoAddress = "Error: Please Enter a URL";

class ConfirmStopDeathTest : public testing::Test {
 protected:
  void SetUp() override {
    campaign->setTotalFunding(100);
    campaign->setCurrFunding(40);
    page->campaignNum = 6;
    page->dollarsDonated = 10.0F;
    page->view();
  }
  // Presses "Yes", and says how far the booking came.
  void yes() {
    sayWhenStopped([this] {
      return std::to_string(static_cast<int>(campaign->currFunding())) + " raised, " +
             std::to_string(otherCampaigns().size()) + " others, " +
             std::to_string(campaignsIFunded().size()) + " funded";
    });
    page->yesClicked(nullptr);
  }

  std::shared_ptr<CampaignClass> campaign = otherCampaigns()[6];
  std::shared_ptr<ConfirmPageVC> page = makeScreen<ConfirmPageVC>("ConfirmPageVC");
};

TEST_F(ConfirmStopDeathTest, TheSumIsStoredBeforeThePositionIsChecked) {
  otherCampaigns().pop_back();
  EXPECT_DEATH(yes(), "position 6 is outside a list of 6\n50 raised, 6 others, 3 funded");
  page->campaignNum.reset();
  EXPECT_DEATH(yes(), "no campaign position was given\n50 raised, 6 others, 3 funded");
}

TEST_F(ConfirmStopDeathTest, AnAbsentAmountStopsBeforeAnythingIsBooked) {
  page->dollarsDonated.reset();
  EXPECT_DEATH(yes(), "no amount was given\n40 raised, 7 others, 3 funded");
}

TEST_F(ConfirmStopDeathTest, AnAbsentCampaignStopsAfterTheRemovalWhateverTheAmount) {
  page->campaign.reset();
  page->dollarsDonated.reset();
  EXPECT_DEATH(yes(), "there is no campaign to fund\n40 raised, 6 others, 3 funded");
}

TEST_F(ConfirmStopDeathTest, ThePositionIsPrintedBeforeItIsLookedUp) {
  const auto load = [](std::optional<std::ptrdiff_t> position) {
    printToStandardError();
    const auto other = makeScreen<ConfirmPageVC>("ConfirmPageVC");
    other->campaignNum = position;
    other->view();
  };
  EXPECT_DEATH(load(7), "^7\nLeafund stopped");
  EXPECT_DEATH(load(std::nullopt), "^nil\nLeafund stopped");
}

class DetailStopDeathTest : public testing::Test {
 protected:
  void open(const std::string& listName, std::optional<std::ptrdiff_t> position) {
    detail->campaignSendingYou = listName;
    detail->campaignNum = position;
    detail->view();
  }

  HeadlessHost host;
  std::shared_ptr<OneCampaignViewController> detail =
      makeScreen<OneCampaignViewController>("OneCampaignViewController");
};

TEST_F(DetailStopDeathTest, ThePositionIsPrintedBeforeItIsLookedUp) {
  const auto load = [this](std::optional<std::ptrdiff_t> position) {
    printToStandardError();
    open("campaignsIFunded", position);
  };
  EXPECT_DEATH(load(3), "^3\nLeafund stopped");
  EXPECT_DEATH(load(std::nullopt), "^nil\nLeafund stopped");
}

TEST_F(DetailStopDeathTest, APositionOutsideTheListLeavesEveryTextAsItWas) {
  const auto load = [this] {
    sayWhenStopped([this] {
      return "<" + detail->campaignTitle->text() + detail->campaignText->text() + ">" +
             detail->labelAboveSlider->text() +
             (detail->errorLabel->hidden() ? " hidden" : " shown");
    });
    open("campaignsIFunded", 3);
  };
  EXPECT_DEATH(load(), "is outside a list of 3\n<>Raised so far shown");
}

TEST_F(DetailStopDeathTest, WithoutACampaignTheFundedTestPassesAndOnlyTheSecondProgressStops) {
  const auto load = [this] {
    sayWhenStopped([this] {
      return detail->labelAboveSlider->text() + " " +
             std::to_string(detail->slider->animatedFrom()) + " " +
             (detail->campaignUpdates->hidden() ? "hidden" : "shown");
    });
    detail->view();
  };
  EXPECT_DEATH(load(), "there is no campaign to show\nFunded! 0.000000 shown");
}

TEST_F(DetailStopDeathTest, EverythingIsShownAndNothingRequestedWhenTheAddressStops) {
  auto& campaign = *campaignsIFunded()[2];
  campaign.setPhoto(kNoAddress);
  campaign.setCampaignDescription("We carpool.");
  const auto load = [this] {
    sayWhenStopped([this] {
      return detail->campaignTitle->text() + ", " + detail->campaignCreator->text() + ", " +
             detail->campaignText->text() + ", " + detail->desiredFund->text() + ", " +
             detail->currentFund->text() + ", " + std::to_string(detail->slider->progress()) +
             ", radius " + std::to_string(detail->campaignImage->layer().cornerRadius()) +
             (detail->FundButton->hidden() ? ", no button, " : ", a button, ") +
             std::to_string(host.fetches().size()) + " requests";
    });
    open("campaignsIFunded", 2);
  };
  EXPECT_DEATH(load(), "not a URL: " + kNoAddress +
                           "\nCarpool for Salvation, Nell and Ivo, We carpool., .100.00, .60.00, "
                           "0.600000, radius 65.000000, no button, 0 requests");
}

class UpdateStopDeathTest : public testing::Test {
 protected:
  void open(std::ptrdiff_t position) {
    sayWhenStopped([this] {
      return "<" + page->test->text() + "><" + page->updateOneDate->text() + "><" +
             page->updateOneText->text() + "> " + std::to_string(host.fetches().size()) +
             " requests";
    });
    page->campaignSendingYou = "campaignsIFunded";
    page->campaignNum = position;
    page->view();
  }

  HeadlessHost host;
  std::shared_ptr<UpdatePageVC> page = makeScreen<UpdatePageVC>("UpdatePageVC");
};

TEST_F(UpdateStopDeathTest, APositionOutsideTheListLeavesNoPartialDisplay) {
  EXPECT_DEATH(open(3), "position 3 is outside a list of 3\n<><><> 0 requests");
}

TEST_F(UpdateStopDeathTest, EverythingIsShownAndNothingRequestedWhenTheAddressStops) {
  auto& campaign = *campaignsIFunded()[2];
  campaign.setUpdateOneDate("December 9");
  campaign.setUpdateOneText("We sing.");
  campaign.setUpdateOnePhoto(kNoAddress);
  EXPECT_DEATH(open(2), "not a URL: " + kNoAddress +
                            "\n<Carpool for Salvation><December 9><We sing.> 0 requests");
}

using RowStopDeathTest = CampaignTableTest;

TEST_F(RowStopDeathTest, BothLabelsAreSetAndNothingElseIsDoneWhenTheAddressStops) {
  open("browseTab");
  auto& campaign = *otherCampaigns()[0];
  campaign.setTitle("Rain Barrels");
  campaign.setShortDescription("I'll catch the rain!");
  campaign.setPhoto(kNoAddress);
  std::shared_ptr<UITableViewCell> built;
  table->registerPrototype("abc", [&built] {
    return built = std::make_shared<UITableViewCell>(UITableViewCellStyle::Subtitle, "abc");
  });
  table->setRowHeight(7);
  const auto before = app.host.fetches().size();
  const auto build = [&] {
    sayWhenStopped([&] {
      return built->textLabel()->text() + " " + built->detailTextLabel()->text() + " radius " +
             std::to_string(built->imageView()->layer().cornerRadius()) + ", rows of " +
             std::to_string(table->rowHeight()) + ", " +
             std::to_string(app.host.fetches().size() - before) + " requests";
    });
    screen->tableViewCellForRowAtIndexPath(*table, {0, 0});
  };
  EXPECT_DEATH(build(), "not a URL: " + kNoAddress +
                            "\nRain Barrels I'll catch the rain! radius 65.000000, "
                            "rows of 7.000000, 0 requests");
}

}  // namespace
}  // namespace leafund
