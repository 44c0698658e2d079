#include <algorithm>

#include "platform/uikit/UILabel.h"
#include "tests/contract/ContractTest.h"

namespace leafund {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NavigationContract : public ContractTest {
 protected:
  // To the question whether to pledge, with an amount that is accepted.
  void openConfirmation() {
    signIn();
    tapRow(0);
    settle();
    type("dollarAmountField", "5");
    tap("FundButton");
    settle();
  }
};

TEST_F(NavigationContract, ATapRunsTheActionWithTheControlAsSender) {
  std::vector<Sender> senders;
  const auto button = std::dynamic_pointer_cast<UIControl>(view("signInButton"));
  EXPECT_THAT(button->actionsForControlEvent(UIControlEvent::TouchUpInside),
              ElementsAre("signInClicked:"));
  button->addAction("watch:", UIControlEvent::TouchUpInside,
                    [&](const Sender& sender) { senders.push_back(sender); });
  application->tap(button);
  settle();
  EXPECT_EQ(field("userEmail")->text(), "Error: Please Enter a Name");
  EXPECT_EQ(field("password")->text(), "Error: Please Enter a Password");
  EXPECT_THAT(senders, ElementsAre(button));
}

TEST_F(NavigationContract, OutletsReachTheViewsOfTheirScreen) {
  signIn();
  tapRow(1);
  settle();
  EXPECT_EQ(std::dynamic_pointer_cast<UILabel>(view("campaignTitle"))->text(), "Biking to Work!");
  EXPECT_TRUE(view("errorLabel")->hidden());
  tap("FundButton");
  settle();
  EXPECT_FALSE(view("errorLabel")->hidden());
}

TEST_F(NavigationContract, EnteringAMessageRunsItsActionAndTypedTextStays) {
  tap("signInButton");
  settle();
  application->beginEditing(field("userEmail"));
  settle();
  EXPECT_EQ(field("userEmail")->text(), "");
  type("userEmail", "wren");
  application->endEditing(field("userEmail"));
  settle();
  application->beginEditing(field("userEmail"));
  settle();
  EXPECT_EQ(field("userEmail")->text(), "wren");
  EXPECT_EQ(application->firstResponder(), field("userEmail"));
}

TEST_F(NavigationContract, AHiddenControlTakesNoTap) {
  signIn();
  EXPECT_TRUE(view("newButton")->hidden());
  tap("newButton");
  settle();
  EXPECT_THAT(stack(), ElementsAre("LandingPageVC", "TabBarVC"));
}

TEST_F(NavigationContract, ADoubleTapPushesOnce) {
  const auto button = view("signUpButton");
  application->tap(button);
  application->tap(button);
  settle();
  EXPECT_THAT(stack(), ElementsAre("LandingPageVC", "SignUpVC"));
}

TEST_F(NavigationContract, GoingBackIsOneAppearanceOfTheScreenBelow) {
  tap("signUpButton");
  settle();
  const std::weak_ptr<UIResponder> left = shown();
  takeLog();
  application->goBack();
  settle();
  EXPECT_THAT(stack(), ElementsAre("LandingPageVC"));
  EXPECT_THAT(log, ElementsAre("LandingPageVC viewWillAppear"));
  EXPECT_TRUE(left.expired());
}

TEST_F(NavigationContract, AtTheRootAndWithAHiddenBackButtonThereIsNoWayBack) {
  takeLog();
  application->goBack();
  settle();
  EXPECT_THAT(log, IsEmpty());
  signIn();
  takeLog();
  application->goBack();
  settle();
  EXPECT_THAT(stack(), ElementsAre("LandingPageVC", "TabBarVC"));
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(NavigationContract, ATappedRowStartsItsSegueWithTheCellAsSender) {
  signIn();
  const auto browse = shown();
  const auto cell = table()->visibleCells().at(1);
  takeLog();
  application->tap(cell);
  settle();
  EXPECT_EQ(life(browse).lastSender.lock(), cell);
  EXPECT_THAT(log, ElementsAre("OtherCampaignsTableViewController prepares campaignSegue",
                               "OneCampaignViewController viewDidLoad",
                               "OneCampaignViewController viewWillAppear"));
}

TEST_F(NavigationContract, UnwindingToTheNearestScreenBelowIsOneAppearanceOfIt) {
  openConfirmation();
  const auto detail = navigation().viewControllers()[2];
  takeLog();
  tap("noButton");
  settle();
  EXPECT_EQ(top(), detail);
  EXPECT_THAT(log, ElementsAre("ConfirmPageVC prepares noSegue",
                               "OneCampaignViewController viewWillAppear"));
}

TEST_F(NavigationContract, UnwindingHomeIsOneAppearanceOfHomeAndOneOfItsVisibleTab) {
  openConfirmation();
  tap("yesButton");
  settle();
  EXPECT_THAT(stack(), ElementsAre("LandingPageVC", "TabBarVC", "OneCampaignViewController",
                                   "ConfirmPageVC", "ThankYouVC"));
  takeLog();
  tap("homeButton");
  settle();
  EXPECT_THAT(stack(), ElementsAre("LandingPageVC", "TabBarVC"));
  EXPECT_THAT(log, ElementsAre("ThankYouVC prepares homeSegue", "TabBarVC viewWillAppear",
                               "OtherCampaignsTableViewController viewWillAppear"));
}

TEST_F(NavigationContract, AScreenThatLeftTakesNoMoreInput) {
  openConfirmation();
  const auto yes = view("yesButton");
  tap("noButton");
  settle();
  takeLog();
  application->tap(yes);
  settle();
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(NavigationContract, HundredPushesAndReturnsKeepNoScreen) {
  std::vector<std::weak_ptr<UIResponder>> left;
  for (int i = 0; i < 100; ++i) {
    tap("signUpButton");
    left.push_back(shown());
    application->goBack();
  }
  settle();
  const auto gone = [&left] {
    return std::all_of(left.begin(), left.end(),
                       [](const auto& screen) { return screen.expired(); });
  };
  EXPECT_TRUE(underTest->runUntil(gone));
  EXPECT_THAT(stack(), ElementsAre("LandingPageVC"));
}

}  // namespace
}  // namespace leafund
