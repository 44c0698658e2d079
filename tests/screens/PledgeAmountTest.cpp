#include <gtest/gtest.h>

#include <cmath>

#include "model/Catalogue.h"
#include "platform/headless/HeadlessHost.h"
#include "screens/campaign/OneCampaignViewController.h"
#include "tests/platform/CommaLocale.h"
#include "tests/support/AmountTexts.h"
#include "tests/support/Screens.h"

namespace leafund {
namespace {

const std::string kFirstText = sceneText("OneCampaignViewController", "errorLabel");
const std::string kTooMuch = "Error: Donation Exceeds Maximum";

// A campaign with a goal of 100 and 40 raised.
class PledgeAmountTest : public testing::Test {
 protected:
  void SetUp() override {
    otherCampaigns()[0]->setTotalFunding(100);
    otherCampaigns()[0]->setCurrFunding(40);
    detail->campaignSendingYou = "otherCampaigns";
    detail->campaignNum = 0;
    detail->view();
  }
  void pledge(std::string amount) {
    detail->segues.clear();
    detail->dollarAmountField->setText(std::move(amount));
    detail->FundButton->sendActionsForControlEvents(UIControlEvent::TouchUpInside);
  }
  bool goesOn() const { return detail->segues == std::vector<std::string>{"campaignFundedSegue"}; }

  HeadlessHost host;
  RecordedScreen<OneCampaignViewController> detail{"OneCampaignViewController"};
};

TEST_F(PledgeAmountTest, ExactlyTheRemainingSumGoesOnWithTheScreenAsSender) {
  pledge("60");
  EXPECT_TRUE(goesOn());
  EXPECT_EQ(detail->lastSender, detail.screen);
  EXPECT_EQ(detail->dollarsDonated, 60.0F);
  EXPECT_TRUE(detail->errorLabel->hidden());
}

TEST_F(PledgeAmountTest, ACentMoreThanTheRemainingSumIsRefused) {
  pledge("60.01");
  EXPECT_FALSE(goesOn());
  EXPECT_EQ(detail->errorLabel->text(), kTooMuch);
  EXPECT_FALSE(detail->errorLabel->hidden());
}

TEST_F(PledgeAmountTest, ARefusedAmountIsStillTheOneDonated) {
  pledge("60.01");
  EXPECT_EQ(detail->dollarsDonated, 60.01F);
}

TEST_F(PledgeAmountTest, LettersNothingAndBlanksShowTheErrorWithItsTextAndKeepTheAmount) {
  pledge("10");
  for (const auto* text : {"twelve", "", "12 ", " 12", "1 2", "$12", "12,50"}) {
    pledge(text);
    EXPECT_FALSE(goesOn()) << text;
    EXPECT_FALSE(detail->errorLabel->hidden()) << text;
    EXPECT_EQ(detail->errorLabel->text(), kFirstText) << text;
    EXPECT_EQ(detail->dollarsDonated, 10.0F) << text;
  }
}

TEST_F(PledgeAmountTest, AfterTooMuchLettersShowThatErrorAgain) {
  pledge("61");
  pledge("twelve");
  EXPECT_EQ(detail->errorLabel->text(), kTooMuch);
}

TEST_F(PledgeAmountTest, TheErrorStaysOnceShown) {
  pledge("61");
  pledge("60");
  EXPECT_TRUE(goesOn());
  EXPECT_FALSE(detail->errorLabel->hidden());
}

TEST_F(PledgeAmountTest, NothingAndNegativeAmountsGoOn) {
  for (const auto* text : {"-10", "0", "-0", "1e-50"}) {
    pledge(text);
    EXPECT_TRUE(goesOn()) << text;
  }
}

TEST_F(PledgeAmountTest, WhatIsNotANumberGoesOnAndTheInfiniteIsRefused) {
  pledge("nan");
  EXPECT_TRUE(goesOn());
  EXPECT_TRUE(std::isnan(detail->dollarsDonated));
  pledge("inf");
  EXPECT_FALSE(goesOn());
  EXPECT_EQ(detail->errorLabel->text(), kTooMuch);
}

TEST_F(PledgeAmountTest, EveryAmountTextHasItsOutcome) {
  detail->campaign->setTotalFunding(1e9F);
  for (const auto& [text, amount] : amountTexts()) {
    detail->dollarsDonated = -1;
    pledge(text);
    EXPECT_TRUE(sameAmount(detail->dollarsDonated, amount.value_or(-1))) << text;
    EXPECT_EQ(goesOn(), amount.has_value() && !std::isinf(*amount)) << text;
  }
}

TEST_F(PledgeAmountTest, EveryAmountTextHasItsOutcomeUnderALocaleWithADecimalComma) {
  const CommaLocale locale;
  if (!locale.set()) GTEST_SKIP() << locale.whyNot();
  detail->campaign->setTotalFunding(1e9F);
  for (const auto& [text, amount] : amountTexts()) {
    detail->dollarsDonated = -1;
    pledge(text);
    EXPECT_TRUE(sameAmount(detail->dollarsDonated, amount.value_or(-1))) << text;
  }
}

TEST_F(PledgeAmountTest, TheErrorTextBeforeAnyPressTellsWhatAnAmountLooksLike) {
  EXPECT_EQ(detail->errorLabel->text(), kFirstText);
}

}  // namespace
}  // namespace leafund
