#include <gtest/gtest.h>

#include "model/Catalogue.h"
#include "screens/accounts/SignUpVC.h"
#include "tests/support/Screens.h"

namespace leafund {
namespace {

using Segues = std::vector<std::string>;

class SignUpTest : public testing::Test {
 protected:
  void SetUp() override { form->view(); }

  std::string signUp(std::string name, std::string password, std::string confirmation) {
    form->nameField->setText(std::move(name));
    form->passwordField->setText(std::move(password));
    form->passwordConfirmField->setText(std::move(confirmation));
    return press();
  }

  std::string press() {
    testing::internal::CaptureStdout();
    form->signUpButton->sendActionsForControlEvents(UIControlEvent::TouchUpInside);
    return testing::internal::GetCapturedStdout();
  }

  void expectTexts(const std::string& name, const std::string& password,
                   const std::string& confirmation) {
    EXPECT_EQ(form->nameField->text(), name);
    EXPECT_EQ(form->passwordField->text(), password);
    EXPECT_EQ(form->passwordConfirmField->text(), confirmation);
  }

  RecordedScreen<SignUpVC> form{"SignUpVC"};
};

TEST_F(SignUpTest, AllInputsEmptyShowThreeMessagesInRedAndKeepTheUserName) {
  signUp("", "", "");
  expectTexts("Error: Please Enter a Name", "Error: Please Enter a Password",
              "Error: Please Re-enter Password");
  for (const auto& field :
       {form->nameField.get(), form->passwordField.get(), form->passwordConfirmField.get()}) {
    EXPECT_EQ(field->textColor(), UIColor::redColor());
  }
  EXPECT_EQ(currentUserName(), "Quillon");
  EXPECT_EQ(form->segues, Segues{});
}

TEST_F(SignUpTest, DifferentPasswordsMarkOnlyTheConfirmation) {
  signUp("Wren", "abc", "abd");
  expectTexts("Wren", "abc", "Error: Passwords Do Not Match");
  EXPECT_EQ(form->nameField->textColor(), UIColor::blackColor());
  EXPECT_EQ(form->passwordField->textColor(), UIColor::blackColor());
  EXPECT_EQ(form->passwordConfirmField->textColor(), UIColor::redColor());
}

TEST_F(SignUpTest, AnEmptyPasswordAndAFilledConfirmationMarkBothAsMissingAndDifferent) {
  signUp("Wren", "", "abc");
  expectTexts("Wren", "Error: Please Enter a Password", "Error: Passwords Do Not Match");
  EXPECT_EQ(form->passwordField->textColor(), UIColor::redColor());
  EXPECT_EQ(form->passwordConfirmField->textColor(), UIColor::redColor());
  EXPECT_EQ(form->nameField->textColor(), UIColor::blackColor());
}

TEST_F(SignUpTest, AnEmptyConfirmationSkipsTheAgreementCheck) {
  signUp("Wren", "abc", "");
  expectTexts("Wren", "abc", "Error: Please Re-enter Password");
}

TEST_F(SignUpTest, AFilledNameWithEqualPasswordsStoresTheNameAndMovesOn) {
  signUp("Wren", "x", "x");
  EXPECT_EQ(currentUserName(), "Wren");
  EXPECT_EQ(form->segues, Segues{"signUpSecondSegue"});
  EXPECT_EQ(form->lastSender, form.screen);
}

TEST_F(SignUpTest, TheNameIsStoredBeforeTheSegue) {
  std::string stored;
  form->onSegue = [&] { stored = currentUserName(); };
  signUp("Wren", "x", "x");
  EXPECT_EQ(stored, "Wren");
}

TEST_F(SignUpTest, ANameThatIsNoEmailAddressIsAccepted) {
  signUp("Wren of the Hills", "x", "x");
  EXPECT_EQ(currentUserName(), "Wren of the Hills");
}

TEST_F(SignUpTest, SpacesCountAsFilled) {
  signUp(" ", " ", " ");
  EXPECT_EQ(currentUserName(), " ");
}

TEST_F(SignUpTest, ASecondPressAfterAnEmptyNameTakesTheMessageForTheName) {
  signUp("", "x", "x");
  EXPECT_EQ(currentUserName(), "Quillon");
  EXPECT_EQ(press(), "Error: Please Enter a Name\n");
  EXPECT_EQ(currentUserName(), "Error: Please Enter a Name");
}

TEST_F(SignUpTest, AllInputsEmptyPressedTwiceMarkOnlyTheConfirmationAsDifferent) {
  signUp("", "", "");
  press();
  expectTexts("Error: Please Enter a Name", "Error: Please Enter a Password",
              "Error: Passwords Do Not Match");
  EXPECT_EQ(form->segues, Segues{});
}

TEST_F(SignUpTest, CanonicallyEquivalentPasswordsAgree) {
  signUp("Wren", "caf\xC3\xA9", "cafe\xCC\x81");
  EXPECT_EQ(form->segues, Segues{"signUpSecondSegue"});
}

TEST_F(SignUpTest, EachPressWritesTheNameAsOneLine) {
  EXPECT_EQ(signUp("", "", ""), "\n");
  EXPECT_EQ(signUp("Wren", "x", "x"), "Wren\n");
}

TEST_F(SignUpTest, AnEmailAddressIsALocalPartAnAtSignAndLabelsJoinedByDots) {
  EXPECT_TRUE(form->isValidEmail("first.last@example.org"));
  EXPECT_TRUE(form->isValidEmail("a`b@c"));
  EXPECT_FALSE(form->isValidEmail("@example.org"));
  EXPECT_FALSE(form->isValidEmail("a@example..org"));
  EXPECT_FALSE(form->isValidEmail("a b@example.org"));
  EXPECT_FALSE(form->isValidEmail("a@exam ple.org"));
  EXPECT_FALSE(form->isValidEmail("a@example.org "));
  EXPECT_FALSE(form->isValidEmail("a@example.org\n"));
  EXPECT_FALSE(form->isValidEmail(""));
}

TEST_F(SignUpTest, ADomainLabelHasAtMost63Characters) {
  EXPECT_TRUE(form->isValidEmail("a@" + std::string(63, 'x') + ".org"));
  EXPECT_FALSE(form->isValidEmail("a@" + std::string(64, 'x') + ".org"));
}

TEST_F(SignUpTest, TheFormDoesNotAskWhetherANameIsAnAddress) {
  signUp("@@", "x", "x");
  EXPECT_EQ(form->segues, Segues{"signUpSecondSegue"});
}

}  // namespace
}  // namespace leafund
