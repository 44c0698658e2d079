// An outlet that is absent when it is used stops the process and is named; one that is not used may
// be absent. Which one is named first tells the order in which they are used.
#include <gtest/gtest.h>

#include "model/Catalogue.h"
#include "platform/headless/HeadlessHost.h"
#include "screens/accounts/LandingPageVC.h"
#include "screens/accounts/SignUpVC.h"
#include "screens/campaign/ConfirmPageVC.h"
#include "screens/campaign/OneCampaignViewController.h"
#include "screens/campaign/UpdatePageVC.h"
#include "screens/create/NewCampaignVC.h"
#include "tests/support/LastWords.h"
#include "tests/support/Screens.h"

namespace leafund {
namespace {

using Clear = std::pair<std::string, std::function<void()>>;

template <class View>
Clear clear(Outlet<View>& outlet) {
  return {outlet.name(), [&outlet] { outlet.connect(nullptr); }};
}

// Clears the outlets from the last to the first: each time the one cleared last is the first of
// those absent that `use` meets.
void expectUsedInOrder(const std::string& screen, const std::vector<Clear>& outlets,
                       const std::function<void()>& use) {
  use();
  for (auto outlet = outlets.rbegin(); outlet != outlets.rend(); ++outlet) {
    outlet->second();
    EXPECT_DEATH(use(),
                 "Leafund stopped: " + screen + ": the outlet " + outlet->first + " is absent\n");
  }
}

TEST(AbsentOutletDeathTest, SigningInReadsEmailAndPassword) {
  RecordedScreen<LandingPageVC> landing("LandingPageVC");
  landing->view();
  landing->signInButton.connect(nullptr);
  landing->signUpButton.connect(nullptr);
  expectUsedInOrder("LandingPageVC", {clear(landing->userEmail), clear(landing->password)},
                    [&] { landing->signInClicked(nullptr); });
}

TEST(AbsentOutletDeathTest, EachClearingActionUsesItsInput) {
  RecordedScreen<LandingPageVC> landing("LandingPageVC");
  landing->view();
  expectUsedInOrder("LandingPageVC", {clear(landing->userEmail)},
                    [&] { landing->fixThingAction(nullptr); });
  expectUsedInOrder("LandingPageVC", {clear(landing->password)},
                    [&] { landing->fixOtherThingAction(nullptr); });
}

TEST(AbsentOutletDeathTest, SigningUpReadsNamePasswordAndConfirmation) {
  RecordedScreen<SignUpVC> form("SignUpVC");
  form->view();
  form->signUpButton.connect(nullptr);
  expectUsedInOrder(
      "SignUpVC",
      {clear(form->nameField), clear(form->passwordField), clear(form->passwordConfirmField)},
      [&] { form->signUpClicked(nullptr); });
}

TEST(AbsentOutletDeathTest, CreatingReadsSixInputsAndShowsTheMoneyLabelForABadAmountAlone) {
  RecordedScreen<NewCampaignVC> form("NewCampaignVC");
  form->view();
  form->emailInvite.connect(nullptr);
  form->createButton.connect(nullptr);
  expectUsedInOrder(
      "NewCampaignVC",
      {clear(form->nameOfCreator), clear(form->nameOfCampaign), clear(form->shortDescription),
       clear(form->fullDescription), clear(form->desiredFunding), clear(form->imageURL),
       clear(form->moneyErrorField)},
      [&] { form->createButtonClicked(nullptr); });
}

TEST(AbsentOutletDeathTest, AGoodAmountNeedsNoMoneyLabelAndLoadingNeedsIt) {
  RecordedScreen<NewCampaignVC> form("NewCampaignVC");
  form->view();
  form->desiredFunding->setText("25");
  form->moneyErrorField.connect(nullptr);
  form->createButtonClicked(nullptr);
  EXPECT_EQ(form->imageURL->text(), "Error: Please Enter a URL");
  EXPECT_DEATH(form->viewDidLoad(), "NewCampaignVC: the outlet moneyErrorField is absent");
}

TEST(AbsentOutletDeathTest, TheMoneyLabelIsShownAfterTheTextsAreMarkedAndBeforeTheAddressIs) {
  RecordedScreen<NewCampaignVC> form("NewCampaignVC");
  form->view();
  form->moneyErrorField.connect(nullptr);
  const auto press = [&] {
    sayWhenStopped([&] {
      return form->nameOfCreator->text() + "|" + form->fullDescription->text() + "|" +
             form->imageURL->text() + ".";
    });
    form->createButtonClicked(nullptr);
  };
  EXPECT_DEATH(press(),
               "is absent\nError: Please Enter a Name.Error: Please Enter a Description.[.]");
}

class AbsentCampaignOutletDeathTest : public testing::Test {
 protected:
  void SetUp() override {
    detail->campaignSendingYou = "myUnfundedCampaigns";
    detail->campaignNum = 0;
    detail->view();
    detail->campaignPhoto.connect(nullptr);
    detail->campaignDescription.connect(nullptr);
  }

  HeadlessHost host;
  RecordedScreen<OneCampaignViewController> detail{"OneCampaignViewController"};
};

TEST_F(AbsentCampaignOutletDeathTest, ACampaignIsShownInOrder) {
  detail->labelAboveSlider.connect(nullptr);
  expectUsedInOrder(
      "OneCampaignViewController",
      {clear(detail->campaignUpdates), clear(detail->errorLabel), clear(detail->slider),
       clear(detail->desiredFund), clear(detail->currentFund), clear(detail->campaignTitle),
       clear(detail->campaignCreator), clear(detail->campaignText), clear(detail->campaignImage),
       clear(detail->FundButton), clear(detail->dollarAmountField)},
      [&] { detail->viewDidLoad(); });
}

TEST_F(AbsentCampaignOutletDeathTest, AFundedCampaignHidesItsSumsInOrder) {
  detail->campaign->setCurrFunding(detail->campaign->totalFunding());
  expectUsedInOrder("OneCampaignViewController",
                    {clear(detail->slider), clear(detail->desiredFund), clear(detail->currentFund),
                     clear(detail->labelAboveSlider), clear(detail->campaignTitle)},
                    [&] { detail->viewDidLoad(); });
}

TEST_F(AbsentCampaignOutletDeathTest, OtherPeoplesCampaignsNeedNoButtonToBeShown) {
  detail->campaignSendingYou = "otherCampaigns";
  detail->FundButton.connect(nullptr);
  detail->dollarAmountField.connect(nullptr);
  detail->viewDidLoad();
  EXPECT_EQ(detail->campaignTitle->text(), "Vegetarian for PETA");
}

TEST_F(AbsentCampaignOutletDeathTest, PledgingReadsTheAmountAndShowsTheErrorOfARefusedOneAlone) {
  detail->dollarAmountField->setText("1");
  detail->errorLabel.connect(nullptr);
  detail->ButtonClicked(nullptr);
  EXPECT_EQ(detail->segues, std::vector<std::string>{"campaignFundedSegue"});
  for (const auto* refused : {"one", "1000"}) {
    detail->dollarAmountField->setText(refused);
    EXPECT_DEATH(detail->ButtonClicked(nullptr), "the outlet errorLabel is absent");
  }
  detail->dollarAmountField.connect(nullptr);
  EXPECT_DEATH(detail->ButtonClicked(nullptr), "the outlet dollarAmountField is absent");
}

class AbsentUpdateOutletDeathTest : public testing::Test {
 protected:
  void SetUp() override {
    page->campaignSendingYou = "campaignsIFunded";
    page->campaignNum = 0;
    page->view();
  }

  HeadlessHost host;
  RecordedScreen<UpdatePageVC> page{"UpdatePageVC"};
};

TEST_F(AbsentUpdateOutletDeathTest, AnUpdateIsShownByTitleDateAndText) {
  writeSeedUpdates();
  page->updateOneImage.connect(nullptr);  // not before its picture comes
  expectUsedInOrder("UpdatePageVC",
                    {clear(page->test), clear(page->updateOneDate), clear(page->updateOneText)},
                    [&] { page->viewDidLoad(); });
}

TEST_F(AbsentUpdateOutletDeathTest, WithoutAnUpdateTheTextComesBeforeTheDate) {
  expectUsedInOrder("UpdatePageVC",
                    {clear(page->test), clear(page->updateOneText), clear(page->updateOneDate)},
                    [&] { page->viewDidLoad(); });
}

TEST_F(AbsentUpdateOutletDeathTest, APictureThatComesNeedsItsImageViewWhateverItIs) {
  page->updateOneImage.connect(nullptr);
  EXPECT_DEATH(host.answer(0, "<html>"), "UpdatePageVC: the outlet updateOneImage is absent");
  host.fail(0);
}

TEST(AbsentButtonTest, AConfirmationUsesNoneOfItsOutlets) {
  RecordedScreen<ConfirmPageVC> page("ConfirmPageVC");
  page->campaignNum = 0;
  page->dollarsDonated = 1.0F;
  page->view();
  page->yesButton.connect(nullptr);
  page->noButton.connect(nullptr);
  page->viewDidLoad();
  page->noClicked(nullptr);
  page->yesClicked(nullptr);
  EXPECT_EQ(page->segues, (std::vector<std::string>{"noSegue", "yesSegue"}));
}

}  // namespace
}  // namespace leafund
