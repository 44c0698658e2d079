#include "model/Catalogue.h"
#include "platform/uikit/UITextInput.h"
#include "tests/support/ViewNamed.h"
#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

// What the keyboard on the screen is told of an input, and how much of a text is on it.
class TypingTest : public WindowTest {
 protected:
  int hints(const std::string& name) {
    return app.require(name).property("inputMethodHints").toInt();
  }
  void openForm() {
    signIn();
    click("mineTab");
    click("newButton");
  }
};

TEST_F(TypingTest, NothingIsCorrectedAndAPasswordIsNotLearned) {
  for (const auto* name : {"userEmail", "password"}) {
    EXPECT_TRUE(hints(name) & Qt::ImhNoPredictiveText) << name;
    EXPECT_TRUE(hints(name) & Qt::ImhNoAutoUppercase) << name;
  }
  EXPECT_TRUE(hints("password") & Qt::ImhSensitiveData);
  EXPECT_FALSE(hints("userEmail") & Qt::ImhSensitiveData);
  click("signInButton");  // its message is read in clear, and what replaces it is a password
  EXPECT_TRUE(hints("password") & Qt::ImhSensitiveData);
}

TEST_F(TypingTest, ThePasswordThatReplacesAMessageIsMaskedFromItsFirstLetter) {
  click("signUpButton");
  click("signUpButton");
  auto& field = app.require("passwordField");
  click("passwordField");
  constexpr int kPassword = 2;  // of a TextInput's echo modes
  ASSERT_NE(field.property("echoMode").toInt(), kPassword);
  QInputMethodEvent composing("s", {});
  QCoreApplication::sendEvent(&field, &composing);
  EXPECT_EQ(field.property("echoMode").toInt(), kPassword);
}

TEST_F(TypingTest, EachInputHasTheKeysOfWhatBelongsThere) {
  EXPECT_TRUE(hints("userEmail") & Qt::ImhEmailCharactersOnly);
  openForm();
  EXPECT_TRUE(hints("desiredFunding") & Qt::ImhFormattedNumbersOnly);
  EXPECT_TRUE(hints("imageURL") & Qt::ImhUrlCharactersOnly);
  EXPECT_FALSE(hints("nameOfCreator") & Qt::ImhFormattedNumbersOnly);
  EXPECT_TRUE(hints("fullDescription") & Qt::ImhMultiLine);
}

TEST_F(TypingTest, ATextToWriteIsWholeHoweverLongItIs) {
  const std::string longText(25'000, 'x');
  openForm();
  const auto area =
      std::dynamic_pointer_cast<UITextView>(viewNamed(app.navigation(), "fullDescription"));
  app.application->turn([&] { area->setText(longText + " end"); });
  app.settle();
  EXPECT_EQ(shownWords("fullDescription").size(), 25'004);
}

TEST_F(TypingTest, ATextToReadIsCutBetweenTwoCharactersAndNotWithinOne) {
  constexpr qsizetype kMost = 20'000;
  otherCampaigns()[0]->setCreator(std::string(kMost - 1, 'x') + "\xF0\x9F\x8C\xB1" + "more");
  signIn();
  click("abc-0");
  const QString shown = shownWords("campaignCreator");
  EXPECT_EQ(shown.size(), kMost);
  EXPECT_EQ(shown.right(2), QString("x\u2026"));
}

}  // namespace
}  // namespace leafund
