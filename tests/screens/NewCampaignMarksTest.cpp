#include <gtest/gtest.h>

#include "screens/create/NewCampaignVC.h"
#include "tests/support/HeadlessApplication.h"
#include "tests/support/Screens.h"

namespace leafund {
namespace {

TEST(NewCampaignMarksTest, TheMoneyLabelStaysWhenTheAmountIsCorrectedAndAnotherInputRefuses) {
  RecordedScreen<NewCampaignVC> form{"NewCampaignVC"};
  form->view();
  const auto press = [&] {
    form->createButton->sendActionsForControlEvents(UIControlEvent::TouchUpInside);
  };
  form->desiredFunding->setText("12a");
  press();
  EXPECT_FALSE(form->moneyErrorField->hidden());
  form->desiredFunding->setText("12");
  form->imageURL->setText("");
  press();
  EXPECT_FALSE(form->moneyErrorField->hidden());
  EXPECT_TRUE(form->segues.empty());
}

}  // namespace
}  // namespace leafund
