#include <gtest/gtest.h>

#include "model/Catalogue.h"
#include "screens/accounts/LandingPageVC.h"
#include "tests/support/HeadlessApplication.h"
#include "tests/support/Screens.h"

namespace leafund {
namespace {

using Segues = std::vector<std::string>;

class LandingPageTest : public testing::Test {
 protected:
  void SetUp() override { landing->view(); }

  std::string signIn(std::string email, std::string password) {
    landing->userEmail->setText(std::move(email));
    landing->password->setText(std::move(password));
    testing::internal::CaptureStdout();
    landing->signInClicked(landing->signInButton.get());
    return testing::internal::GetCapturedStdout();
  }

  RecordedScreen<LandingPageVC> landing{"LandingPageVC"};
};

TEST_F(LandingPageTest, BothInputsEmptyShowBothMessagesInRedAndPerformNoTransition) {
  signIn("", "");
  EXPECT_EQ(landing->userEmail->text(), "Error: Please Enter a Name");
  EXPECT_EQ(landing->password->text(), "Error: Please Enter a Password");
  EXPECT_EQ(landing->userEmail->textColor(), UIColor::redColor());
  EXPECT_EQ(landing->password->textColor(), UIColor::redColor());
  EXPECT_EQ(landing->segues, Segues{});
}

TEST_F(LandingPageTest, AnyEmailAndAnyPasswordSignInEvenWithoutAnAtSign) {
  signIn("no address", "x");
  EXPECT_EQ(landing->segues, Segues{"signInSegue"});
  EXPECT_EQ(landing->lastSender, landing.screen);
}

TEST_F(LandingPageTest, SpacesCountAsFilled) {
  signIn(" ", " ");
  EXPECT_EQ(landing->segues, Segues{"signInSegue"});
}

TEST_F(LandingPageTest, OnlyAnEmptyPasswordMarksOnlyThePassword) {
  signIn("a@b", "");
  EXPECT_EQ(landing->userEmail->text(), "a@b");
  EXPECT_EQ(landing->userEmail->textColor(), UIColor::blackColor());
  EXPECT_EQ(landing->password->text(), "Error: Please Enter a Password");
  EXPECT_EQ(landing->segues, Segues{});
}

TEST_F(LandingPageTest, OnlyAnEmptyEmailMarksOnlyTheEmail) {
  signIn("", "secret");
  EXPECT_EQ(landing->userEmail->text(), "Error: Please Enter a Name");
  EXPECT_EQ(landing->password->text(), "secret");
  EXPECT_EQ(landing->password->textColor(), UIColor::blackColor());
}

TEST_F(LandingPageTest, AfterARefusalTheClearingActionsLeaveBothInputsEmptyAndBlack) {
  signIn("", "");
  landing->fixThingAction(nullptr);
  EXPECT_EQ(landing->userEmail->text(), "");
  EXPECT_EQ(landing->userEmail->textColor(), UIColor::blackColor());
  EXPECT_EQ(landing->password->text(), "Error: Please Enter a Password");
  landing->fixOtherThingAction(nullptr);
  EXPECT_EQ(landing->password->text(), "");
  EXPECT_EQ(landing->password->textColor(), UIColor::blackColor());
}

TEST_F(LandingPageTest, TheClearingActionsClearWhateverTheInputHolds) {
  landing->userEmail->setText("typed");
  landing->fixThingAction(nullptr);
  EXPECT_EQ(landing->userEmail->text(), "");
}

TEST_F(LandingPageTest, ASecondPressAfterARefusalSignsInWithTheMessagesAsTexts) {
  signIn("", "");
  testing::internal::CaptureStdout();
  landing->signInClicked(nullptr);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "Error: Please Enter a Name\n");
  EXPECT_EQ(landing->segues, Segues{"signInSegue"});
}

TEST_F(LandingPageTest, EachPressWritesTheEmailAsOneLineWhetherRefusedOrNot) {
  EXPECT_EQ(signIn("", "x"), "\n");
  EXPECT_EQ(signIn("wren@example.org", ""), "wren@example.org\n");
  EXPECT_EQ(signIn("wren@example.org", "x"), "wren@example.org\n");
}

TEST_F(LandingPageTest, SignUpPerformsItsSegueWhateverTheInputsHold) {
  landing->signUpClicked(nullptr);
  landing->userEmail->setText("a");
  landing->signUpClicked(nullptr);
  EXPECT_EQ(landing->segues, (Segues{"signUpSegue", "signUpSegue"}));
  EXPECT_EQ(landing->userEmail->textColor(), UIColor::blackColor());
}

TEST_F(LandingPageTest, SignUpNamesTheScreenAsSenderAndPrintsNothing) {
  landing->userEmail->setText("wren@example.org");
  testing::internal::CaptureStdout();
  landing->signUpButton->sendActionsForControlEvents(UIControlEvent::TouchUpInside);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(landing->segues, Segues{"signUpSegue"});
  EXPECT_EQ(landing->lastSender, landing.screen);
}

TEST_F(LandingPageTest, SigningInStoresNoUserName) {
  signIn("wren@example.org", "x");
  EXPECT_EQ(currentUserName(), "Quillon");
}

TEST(LandingPageLoadTest, EachLoadWritesTheSeedUpdatesAgain) {
  auto& funded = campaignsIFunded();
  auto landing = makeScreen<LandingPageVC>("LandingPageVC");
  EXPECT_EQ(funded[0]->updateOneDate(), "");
  landing->view();
  EXPECT_EQ(funded[0]->updateOneDate(), "December 1");
  funded[1]->setUpdateOneDate("overwritten");
  landing->releaseView();
  landing->view();
  EXPECT_EQ(funded[1]->updateOneDate(), "December 3");
}

TEST(LandingPageLoadTest, AfterAPledgeTheUpdatesLandOnWhicheverCampaignsStandInFront) {
  auto& funded = campaignsIFunded();
  funded.insert(funded.begin(), otherCampaigns()[2]);
  makeScreen<LandingPageVC>("LandingPageVC")->view();
  EXPECT_EQ(funded[0]->title(), "Solar Panel House");
  EXPECT_EQ(funded[0]->updateOneDate(), "December 1");
  EXPECT_EQ(funded[1]->title(), "Compost for Christ!");
  EXPECT_EQ(funded[1]->updateOneDate(), "December 3");
}

TEST(LandingPageUserTest, EnteringAnInputThatShowsAMessageClearsIt) {
  HeadlessApplication app;
  app.tap("signInButton");
  app.application->beginEditing(app.viewAs<UITextInput>("userEmail"));
  EXPECT_EQ(app.text("userEmail"), "");
  EXPECT_EQ(app.text("password"), "Error: Please Enter a Password");
  app.application->beginEditing(app.viewAs<UITextInput>("password"));
  EXPECT_EQ(app.text("password"), "");
}

TEST(LandingPageUserTest, EnteringAnInputNeverWipesTypedText) {
  HeadlessApplication app;
  app.type("userEmail", "wren@example.org");
  app.application->endEditing(app.viewAs<UITextInput>("userEmail"));
  app.application->beginEditing(app.viewAs<UITextInput>("userEmail"));
  EXPECT_EQ(app.text("userEmail"), "wren@example.org");
}

TEST(LandingPageUserTest, APasswordIsMaskedAndItsMessageIsReadInClear) {
  HeadlessApplication app;
  const auto password = app.viewAs<UITextField>("password");
  EXPECT_TRUE(password->masked());
  app.tap("signInButton");
  EXPECT_FALSE(password->masked());
  app.type("password", "secret");
  EXPECT_TRUE(password->masked());
}

TEST(LandingPageUserTest, ADoubleTapOnSignInOpensHomeOnce) {
  HeadlessApplication app;
  app.type("userEmail", "a");
  app.type("password", "b");
  const auto button = app.view("signInButton");
  app.application->tap(button);
  app.application->tap(button);
  EXPECT_EQ(app.stack(), (Segues{"LandingPageVC", "TabBarVC"}));
}

}  // namespace
}  // namespace leafund
