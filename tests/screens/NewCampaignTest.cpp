#include <gtest/gtest.h>

#include <cmath>

#include "model/Catalogue.h"
#include "platform/uikit/UITapGestureRecognizer.h"
#include "screens/campaign/ConfirmPageVC.h"
#include "screens/campaign/ThankYouVC.h"
#include "screens/create/NewCampaignVC.h"
#include "tests/platform/CommaLocale.h"
#include "tests/support/AmountTexts.h"
#include "tests/support/HeadlessApplication.h"
#include "tests/support/Screens.h"

namespace leafund {
namespace {

using Segues = std::vector<std::string>;

class NewCampaignTest : public testing::Test {
 protected:
  void SetUp() override { form->view(); }

  void fill(const std::string& goal = "250") {
    form->nameOfCreator->setText("Wren");
    form->nameOfCampaign->setText("Rain Barrels");
    form->shortDescription->setText("I'll catch the rain!");
    form->fullDescription->setText("Barrels for every gutter.");
    form->desiredFunding->setText(goal);
    form->imageURL->setText("http://pictures.example/rain.jpg");
  }
  void press() { form->createButton->sendActionsForControlEvents(UIControlEvent::TouchUpInside); }

  RecordedScreen<NewCampaignVC> form{"NewCampaignVC"};
};

TEST_F(NewCampaignTest, AllInputsEmptyMarkFiveInRedShowTheMoneyLabelAndCreateNothing) {
  press();
  EXPECT_EQ(form->nameOfCreator->text(), "Error: Please Enter a Name");
  EXPECT_EQ(form->nameOfCampaign->text(), "Error: Please Enter a Campaign Name");
  EXPECT_EQ(form->shortDescription->text(), "Error: Please Enter a Description");
  EXPECT_EQ(form->fullDescription->text(), "Error: Please Enter a Description");
  EXPECT_EQ(form->imageURL->text(), "Error: Please Enter a URL");
  for (const std::shared_ptr<UITextInput>& input :
       std::initializer_list<std::shared_ptr<UITextInput>>{
           form->nameOfCreator.get(), form->nameOfCampaign.get(), form->shortDescription.get(),
           form->fullDescription.get(), form->imageURL.get()}) {
    EXPECT_EQ(input->textColor(), UIColor::redColor());
  }
  EXPECT_FALSE(form->moneyErrorField->hidden());
  EXPECT_EQ(form->desiredFunding->text(), "");
  EXPECT_EQ(form->desiredFunding->textColor(), UIColor::blackColor());
  EXPECT_EQ(myUnfundedCampaigns().size(), 2U);
  EXPECT_EQ(form->segues, Segues{});
}

TEST_F(NewCampaignTest, EachOfTheFiveIsNeeded) {
  for (const std::shared_ptr<UITextInput>& input :
       std::initializer_list<std::shared_ptr<UITextInput>>{
           form->nameOfCreator.get(), form->nameOfCampaign.get(), form->shortDescription.get(),
           form->fullDescription.get(), form->imageURL.get()}) {
    SCOPED_TRACE(input->name());
    fill();
    input->setText("");
    press();
    EXPECT_NE(input->text(), "");
    EXPECT_EQ(myUnfundedCampaigns().size(), 2U);
    EXPECT_EQ(form->segues, Segues{});
  }
}

TEST_F(NewCampaignTest, OnlyABadAmountShowsOnlyTheMoneyLabel) {
  fill("12a");
  press();
  EXPECT_FALSE(form->moneyErrorField->hidden());
  EXPECT_EQ(form->moneyErrorField->text(), sceneText("NewCampaignVC", "moneyErrorField"));
  EXPECT_EQ(form->desiredFunding->text(), "12a");
  EXPECT_EQ(form->nameOfCreator->text(), "Wren");
  EXPECT_EQ(form->imageURL->textColor(), UIColor::blackColor());
  EXPECT_EQ(form->segues, Segues{});
}

TEST_F(NewCampaignTest, AGoalOfZeroOrBelowCreatesACampaign) {
  for (const auto& [goal, amount] : {std::pair{"0", 0.0F}, {"-5", -5.0F}}) {
    fill(goal);
    press();
    EXPECT_EQ(myUnfundedCampaigns()[0]->totalFunding(), amount);
  }
  EXPECT_EQ(myUnfundedCampaigns().size(), 4U);
}

TEST_F(NewCampaignTest, AGoalWithALeadingSpaceIsNoAmount) {
  fill(" 10");
  press();
  EXPECT_FALSE(form->moneyErrorField->hidden());
  EXPECT_EQ(myUnfundedCampaigns().size(), 2U);
}

TEST_F(NewCampaignTest, ABadAmountKeepsRefusingUntilItIsCorrected) {
  fill("twenty");
  press();
  press();
  EXPECT_EQ(myUnfundedCampaigns().size(), 2U);
  form->desiredFunding->setText("20");
  press();
  EXPECT_EQ(form->segues, Segues{"campaignCreatedSegue"});
  EXPECT_FALSE(form->moneyErrorField->hidden());  // hidden again only by a new form
}

TEST_F(NewCampaignTest, EveryAmountTextHasItsOutcome) {
  for (const auto& [text, amount] : amountTexts()) {
    const auto before = myUnfundedCampaigns().size();
    fill(text);
    press();
    ASSERT_EQ(myUnfundedCampaigns().size(), before + (amount ? 1 : 0)) << text;
    if (amount) {
      EXPECT_TRUE(sameAmount(myUnfundedCampaigns()[0]->totalFunding(), *amount)) << text;
    }
  }
}

TEST_F(NewCampaignTest, EveryAmountTextHasItsOutcomeUnderALocaleWithADecimalComma) {
  const CommaLocale locale;
  if (!locale.set()) GTEST_SKIP() << locale.whyNot();
  for (const auto& [text, amount] : amountTexts()) {
    const auto before = myUnfundedCampaigns().size();
    fill(text);
    press();
    EXPECT_EQ(myUnfundedCampaigns().size(), before + (amount ? 1 : 0)) << text;
  }
}

TEST_F(NewCampaignTest, PressedTwiceAfterAnEmptyCreatorTheMessageIsTheCreator) {
  fill();
  form->nameOfCreator->setText("");
  press();
  EXPECT_EQ(form->segues, Segues{});
  press();
  EXPECT_EQ(myUnfundedCampaigns()[0]->creator(), "Error: Please Enter a Name");
}

TEST_F(NewCampaignTest, ACreatedCampaignIsTheFirstOfTheUsersDated4DecAndWithoutPledgesOrUpdates) {
  fill("25.50");
  const auto before = myUnfundedCampaigns();
  press();
  const auto& mine = myUnfundedCampaigns();
  ASSERT_EQ(mine.size(), 3U);
  const auto& campaign = *mine[0];
  EXPECT_EQ(campaign.title(), "Rain Barrels");
  EXPECT_EQ(campaign.creator(), "Wren");
  EXPECT_EQ(campaign.totalFunding(), 25.5F);
  EXPECT_EQ(campaign.currFunding(), 0.0F);
  EXPECT_EQ(campaign.campaignDescription(), "Barrels for every gutter.");
  EXPECT_EQ(campaign.photo(), "http://pictures.example/rain.jpg");
  EXPECT_EQ(campaign.shortDescription(), "I'll catch the rain!");
  EXPECT_EQ(campaign.dayCreated(), 4);
  EXPECT_EQ(campaign.monthCreated(), "Dec");
  EXPECT_EQ(campaign.updateOneDate() + campaign.updateOneText() + campaign.updateOnePhoto(), "");
  EXPECT_EQ(mine[1], before[0]);
  EXPECT_EQ(mine[2], before[1]);
  EXPECT_EQ(form->segues, Segues{"campaignCreatedSegue"});
  EXPECT_EQ(form->lastSender, form.screen);
}

TEST_F(NewCampaignTest, TheCampaignIsInsertedBeforeTheSegue) {
  std::size_t count = 0;
  form->onSegue = [&] { count = myUnfundedCampaigns().size(); };
  fill();
  press();
  EXPECT_EQ(count, 3U);
}

TEST_F(NewCampaignTest, TheInputsAreNotClearedByCreating) {
  fill();
  press();
  EXPECT_EQ(form->nameOfCampaign->text(), "Rain Barrels");
}

TEST_F(NewCampaignTest, TheInvitationHasNoEffectOnCreation) {
  fill();
  form->emailInvite->setText("");
  press();
  form->emailInvite->setText("friend@example.org");
  press();
  EXPECT_EQ(myUnfundedCampaigns().size(), 4U);
}

TEST_F(NewCampaignTest, SpacesCountAsFilledAndTheAddressIsKeptAsTyped) {
  fill();
  form->nameOfCreator->setText(" ");
  form->imageURL->setText("not an address");
  press();
  EXPECT_EQ(myUnfundedCampaigns()[0]->creator(), " ");
  EXPECT_EQ(myUnfundedCampaigns()[0]->photo(), "not an address");
}

TEST_F(NewCampaignTest, NothingIsEverUnmarked) {
  press();
  fill();
  press();
  EXPECT_EQ(form->nameOfCreator->textColor(), UIColor::redColor());
}

TEST_F(NewCampaignTest, TheThankYouScreenLearnsWhoSentItWhateverTheIdentifier) {
  const auto thanks = makeScreen<ThankYouVC>("ThankYouVC");
  UIStoryboardSegue segue("anything", thanks);
  form->prepareForSegueSender(segue, nullptr);
  EXPECT_EQ(thanks->pageFrom, "NewCampaignVC");
}

TEST_F(NewCampaignTest, AnotherDestinationReceivesNothing) {
  const auto confirm = makeScreen<ConfirmPageVC>("ConfirmPageVC");
  UIStoryboardSegue segue("campaignCreatedSegue", confirm);
  form->prepareForSegueSender(segue, nullptr);
  EXPECT_EQ(confirm->campaignNum, std::nullopt);
}

TEST_F(NewCampaignTest, LoadingHidesTheMoneyLabelAndAddsTheKeyboardsTap) {
  EXPECT_TRUE(form->moneyErrorField->hidden());
  ASSERT_EQ(form->view()->gestureRecognizers().size(), 1U);
  EXPECT_EQ(form->view()->gestureRecognizers()[0]->action(), "dismissKeyboard");
}

}  // namespace
}  // namespace leafund
