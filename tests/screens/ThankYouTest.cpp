#include <gtest/gtest.h>

#include "screens/campaign/ThankYouVC.h"
#include "tests/support/Screens.h"

namespace leafund {
namespace {

std::shared_ptr<ThankYouVC> thanksFrom(std::optional<std::string> page) {
  auto screen = makeScreen<ThankYouVC>("ThankYouVC");
  screen->pageFrom = std::move(page);
  screen->view();
  return screen;
}

const std::string kScenesWords = sceneText("ThankYouVC", "thankYouLabel");

TEST(ThankYouTest, AfterCreatingACampaignTheLabelThanksForIt) {
  EXPECT_EQ(thanksFrom("NewCampaignVC")->thankYouLabel->text(),
            "Thank you for creating a campaign!");
}

TEST(ThankYouTest, AfterAPledgeTheLabelKeepsItsText) {
  EXPECT_EQ(thanksFrom("ConfirmPageVC")->thankYouLabel->text(), kScenesWords);
}

TEST(ThankYouTest, WithoutASendingScreenTheLabelKeepsItsText) {
  EXPECT_EQ(thanksFrom(std::nullopt)->thankYouLabel->text(), kScenesWords);
}

TEST(ThankYouTest, AnyOtherSendingScreenLeavesWhateverTheLabelSays) {
  const auto thanks = thanksFrom(std::nullopt);
  for (const auto& page : {std::optional<std::string>("ConfirmPageVC"), {"SignUpVC"}, {""}, {}}) {
    thanks->thankYouLabel->setText("Thanks!");
    thanks->pageFrom = page;
    thanks->viewDidLoad();
    EXPECT_EQ(thanks->thankYouLabel->text(), "Thanks!");
  }
}

TEST(ThankYouTest, ANameThatDiffersInLetterCaseDoesNotMatch) {
  EXPECT_EQ(thanksFrom("newcampaignvc")->thankYouLabel->text(), kScenesWords);
  EXPECT_EQ(thanksFrom("NewCampaignVc")->thankYouLabel->text(), kScenesWords);
}

TEST(ThankYouTest, TheBackButtonIsHidden) {
  EXPECT_TRUE(thanksFrom(std::nullopt)->navigationItem().hidesBackButton());
}

TEST(ThankYouTest, TheHomeButtonPerformsHomeSegueWithTheScreenAsSender) {
  RecordedScreen<ThankYouVC> thanks("ThankYouVC");
  thanks->view();
  thanks->homeButton->sendActionsForControlEvents(UIControlEvent::TouchUpInside);
  EXPECT_EQ(thanks->segues, std::vector<std::string>{"homeSegue"});
  EXPECT_EQ(thanks->lastSender, thanks.screen);
}

}  // namespace
}  // namespace leafund
