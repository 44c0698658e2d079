#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/uikit/UITextInput.h"
#include "tests/support/HeadlessApplication.h"
#include "tests/support/ProbeScreen.h"
#include "tests/support/ProbeSkin.h"

namespace leafund {
namespace {

using testing::ElementsAre;

class ReturnKey : public UITextFieldDelegate {
 public:
  bool textFieldShouldReturn(const std::shared_ptr<UITextField>& textField) override {
    pressedIn.push_back(textField);
    return textField->endEditing(true);
  }
  std::vector<std::shared_ptr<UITextField>> pressedIn;
};

// A screen with a field, a secret field, a text to write in and one to read.
class UITextInputTest : public testing::Test {
 protected:
  UITextInputTest() {
    const auto root = app.shown()->view();
    for (const std::shared_ptr<UIView>& view :
         std::initializer_list<std::shared_ptr<UIView>>{field, secret, area, reading}) {
      root->addSubview(view);
    }
    secret->setSecureTextEntry(true);
    reading->setEditable(false);
  }
  UIApplication& user() { return *app.application; }

  ProbeLog log;
  UIStoryboard storyboard{"Form", {probeScene(log, "Form")}, {}};
  HeadlessApplication app{storyboard};
  std::shared_ptr<UITextField> field = std::make_shared<UITextField>();
  std::shared_ptr<UITextField> secret = std::make_shared<UITextField>();
  std::shared_ptr<UITextView> area = std::make_shared<UITextView>();
  std::shared_ptr<UITextView> reading = std::make_shared<UITextView>();
};

TEST_F(UITextInputTest, ANewInputIsEmptyBlackAndNotEdited) {
  EXPECT_EQ(field->text(), "");
  EXPECT_EQ(field->placeholder(), "");
  EXPECT_EQ(field->textColor(), UIColor::blackColor());
  EXPECT_EQ(field->keyboardType(), UIKeyboardType::Default);
  EXPECT_FALSE(field->editing());
  EXPECT_FALSE(field->showsMessage());
  EXPECT_FALSE(field->masked());
  EXPECT_TRUE(field->editable());
}

TEST_F(UITextInputTest, ATextOfTheScreenIsAMessageUntilTheUserEditsIt) {
  field->setText("Error: Please Enter a Name");
  EXPECT_TRUE(field->showsMessage());
  user().beginEditing(field);
  EXPECT_TRUE(field->showsMessage());
  user().edit(field, "Error: Please Enter a Name!");
  EXPECT_FALSE(field->showsMessage());
}

TEST_F(UITextInputTest, AnEmptyTextIsNoMessage) {
  field->setText("");
  EXPECT_FALSE(field->showsMessage());
}

TEST_F(UITextInputTest, ATextTypedLikeAMessageIsNone) {
  user().edit(field, "Error: Please Enter a Name");
  EXPECT_FALSE(field->showsMessage());
}

TEST_F(UITextInputTest, AMessageOverTypedTextIsAMessageAgain) {
  user().edit(field, "wren");
  field->setText("Error: Please Enter a Name");
  EXPECT_TRUE(field->showsMessage());
}

TEST_F(UITextInputTest, ASecretIsMaskedAsTypedAndAMessageInItIsReadInClear) {
  EXPECT_TRUE(secret->masked());
  user().edit(secret, "secret");
  EXPECT_TRUE(secret->masked());
  secret->setText("Error: Please Enter a Password");
  EXPECT_FALSE(secret->masked());
  user().edit(secret, "E");
  EXPECT_TRUE(secret->masked());
  EXPECT_FALSE(field->masked());
}

TEST_F(UITextInputTest, EveryWritingRefreshesTheSkinAlsoWithAnEqualText) {
  ProbeSkin skin(secret);
  user().edit(secret, "a");
  EXPECT_EQ(skin.refreshes, 1);
  // The text stays and the masking flips.
  user().turn([&] { secret->setText("a"); });
  EXPECT_EQ(skin.refreshes, 2);
  user().turn([&] { secret->setTextColor(UIColor::redColor()); });
  EXPECT_EQ(skin.refreshes, 3);
}

TEST_F(UITextInputTest, AnEditPutsTheWholeTextInWhateverItHolds) {
  const std::string odd("12\0 \xC3\xBC\n", 7);
  user().edit(field, odd);
  EXPECT_EQ(field->text(), odd);
}

TEST_F(UITextInputTest, EnteringAnInputTellsItOnceAndMakesItTheOneBeingEdited) {
  std::vector<Sender> entered;
  field->addAction("entered:", UIControlEvent::EditingDidBegin,
                   [&](const Sender& sender) { entered.push_back(sender); });
  user().beginEditing(field);
  EXPECT_TRUE(field->editing());
  EXPECT_EQ(user().firstResponder(), field);
  user().beginEditing(field);
  EXPECT_THAT(entered, ElementsAre(field));
}

TEST_F(UITextInputTest, EnteringAnotherInputLeavesTheFirst) {
  user().beginEditing(field);
  user().beginEditing(area);
  EXPECT_FALSE(field->editing());
  EXPECT_TRUE(area->editing());
  EXPECT_EQ(user().firstResponder(), area);
}

TEST_F(UITextInputTest, LeavingAnInputEndsItsEditingAndKeepsItsText) {
  user().beginEditing(field);
  user().edit(field, "wren");
  user().endEditing(field);
  EXPECT_FALSE(field->editing());
  EXPECT_EQ(user().firstResponder(), nullptr);
  EXPECT_EQ(field->text(), "wren");
}

TEST_F(UITextInputTest, LeavingAnInputThatIsNotEditedChangesNothing) {
  user().beginEditing(field);
  user().endEditing(area);
  EXPECT_EQ(user().firstResponder(), field);
}

TEST_F(UITextInputTest, TappingElsewhereLeavesTheInputAndTappingItDoesNot) {
  user().beginEditing(field);
  user().tap(field);
  EXPECT_TRUE(field->editing());
  user().tap(reading);
  EXPECT_FALSE(field->editing());
}

TEST_F(UITextInputTest, AViewEndsEditingOfWhateverInputIsBelowIt) {
  const auto root = app.shown()->view();
  EXPECT_FALSE(root->endEditing(true));
  user().beginEditing(field);
  EXPECT_FALSE(area->endEditing(true));
  EXPECT_TRUE(field->editing());
  EXPECT_TRUE(root->endEditing(false));
  EXPECT_FALSE(field->editing());
  user().beginEditing(field);
  EXPECT_TRUE(field->endEditing(true));
  EXPECT_EQ(user().firstResponder(), nullptr);
}

TEST_F(UITextInputTest, AReadOnlyTextRefusesToBeEnteredAndEdited) {
  reading->setText("A campaign's story");
  user().beginEditing(reading);
  user().edit(reading, "Another story");
  EXPECT_FALSE(reading->editing());
  EXPECT_EQ(reading->text(), "A campaign's story");
  reading->setEditable(true);
  user().edit(reading, "Another story");
  EXPECT_EQ(reading->text(), "Another story");
}

TEST_F(UITextInputTest, TheReturnKeyAsksTheFieldsDelegate) {
  const auto delegate = std::make_shared<ReturnKey>();
  field->setDelegate(delegate);
  user().beginEditing(field);
  user().pressReturn(field);
  EXPECT_THAT(delegate->pressedIn, ElementsAre(field));
  EXPECT_FALSE(field->editing());
}

TEST_F(UITextInputTest, WithoutADelegateTheReturnKeyDoesNothing) {
  user().beginEditing(field);
  user().edit(field, "wren");
  user().pressReturn(field);
  EXPECT_TRUE(field->editing());
  EXPECT_EQ(field->text(), "wren");
}

TEST_F(UITextInputTest, AFieldDoesNotKeepItsDelegateAlive) {
  field->setDelegate(std::make_shared<ReturnKey>());
  EXPECT_EQ(field->delegate(), nullptr);
  user().beginEditing(field);
  user().pressReturn(field);
  EXPECT_TRUE(field->editing());
}

TEST_F(UITextInputTest, AHiddenFieldTakesNeitherEntryNorEditNorReturnKey) {
  const auto delegate = std::make_shared<ReturnKey>();
  field->setDelegate(delegate);
  field->setHidden(true);
  user().beginEditing(field);
  user().edit(field, "wren");
  user().pressReturn(field);
  EXPECT_FALSE(field->editing());
  EXPECT_EQ(field->text(), "");
  EXPECT_THAT(delegate->pressedIn, ElementsAre());
}

TEST_F(UITextInputTest, AnInputThatIsGoneIsPassedOver) {
  user().beginEditing(nullptr);
  user().edit(nullptr, "wren");
  user().endEditing(nullptr);
  user().pressReturn(nullptr);
  EXPECT_EQ(user().firstResponder(), nullptr);
}

TEST_F(UITextInputTest, AnInputThatGoesWhileItIsEditedIsNoLongerTheOneBeingEdited) {
  user().beginEditing(field);
  field->removeFromSuperview();
  field.reset();
  EXPECT_EQ(user().firstResponder(), nullptr);
}

TEST_F(UITextInputTest, ScrollingToTheFirstCharacterAsksTheHostForTheTopEachTime) {
  EXPECT_EQ(reading->scrollsToTop(), 0U);
  reading->scrollRangeToVisible({0, 1});
  EXPECT_EQ(reading->scrollsToTop(), 1U);
  reading->scrollRangeToVisible({100, 1});
  EXPECT_EQ(reading->scrollsToTop(), 1U);
  reading->scrollRangeToVisible({0, 0});
  EXPECT_EQ(reading->scrollsToTop(), 2U);
}

}  // namespace
}  // namespace leafund
