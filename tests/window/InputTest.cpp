#include <QClipboard>
#include <QColor>
#include <QElapsedTimer>
#include <QGuiApplication>

#include "platform/uikit/UITextInput.h"
#include "tests/support/ViewNamed.h"
#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

using InputTest = WindowTest;

TEST_F(InputTest, APasswordIsMaskedInTheWindowAndItsMessageReadInClear) {
  type("password", "secret");
  EXPECT_EQ(app.require("password").property("displayText").toString(), QString(6, QChar(0x25CF)));
  EXPECT_EQ(shownWords("password"), "secret");
  QTest::keyClick(&app.window(), Qt::Key_A, Qt::ControlModifier);
  app.press(Qt::Key_Delete);
  click("signInButton");
  EXPECT_EQ(app.require("password").property("displayText").toString(),
            "Error: Please Enter a Password");
  EXPECT_EQ(app.require("password").property("color").value<QColor>(), QColor(Qt::red));
}

TEST_F(InputTest, EnteringAnInputThatShowsAMessageClearsItAndTypedTextStays) {
  click("signInButton");
  EXPECT_EQ(shownWords("userEmail"), "Error: Please Enter a Name");
  type("userEmail", "wren");
  EXPECT_EQ(shownWords("userEmail"), "wren");
  click("password");
  click("userEmail");
  EXPECT_EQ(shownWords("userEmail"), "wren");
}

TEST_F(InputTest, EnteringTheFormsInputsSelectsAMessageSoThatTypingReplacesIt) {
  click("signUpButton");
  click("signUpButton");
  EXPECT_EQ(shownWords("nameField"), "Error: Please Enter a Name");
  type("nameField", "Wren");
  EXPECT_EQ(shownWords("nameField"), "Wren");
  EXPECT_EQ(app.require("nameField").property("color").value<QColor>(), QColor(Qt::red));
}

TEST_F(InputTest, TypingInTheMiddleKeepsTheCursorThere) {
  type("userEmail", "ac");
  app.press(Qt::Key_Left);
  app.typeKeys("b");
  app.settle();
  EXPECT_EQ(shownWords("userEmail"), "abc");
  EXPECT_EQ(app.require("userEmail").property("cursorPosition").toInt(), 2);
}

TEST_F(InputTest, LinesPastedIntoAFieldOfOneLineAreJoinedByBlanks) {
  const auto pasteBetween = [&](const char* name, const QString& lines) {
    QGuiApplication::clipboard()->setText(lines);
    QTest::keyClick(&app.window(), Qt::Key_A, Qt::ControlModifier);
    app.typeKeys("<>");
    app.press(Qt::Key_Left);
    QTest::keyClick(&app.window(), Qt::Key_V, Qt::ControlModifier);
    app.typeKeys("!");
    app.settle();
    return shownWords(name);
  };
  for (const auto* name : {"userEmail", "password"}) {
    click(name);
    EXPECT_EQ(pasteBetween(name, "wr\r\ne\nn"), "<wr e n!>") << name;
    EXPECT_EQ(pasteBetween(name, "\r\n\nwren\r\n"), "<wren!>") << name;
    EXPECT_EQ(pasteBetween(name, "<\n\n>"), "<<  >!>") << name;
    EXPECT_EQ(pasteBetween(name, "a\rb\n\r\n"), "<a b!>") << name;
    EXPECT_EQ(pasteBetween(name, "\n"), "<!>") << name;
  }
}

TEST_F(InputTest, LinesPastedOverASelectionTakeItsPlaceAndTheCaretStandsBehindThem) {
  QGuiApplication::clipboard()->setText("\nx\ny\n");
  type("userEmail", "abcd");
  for (const auto key : {Qt::Key_Left, Qt::Key_Left, Qt::Key_Left}) app.press(key);
  QTest::keyClick(&app.window(), Qt::Key_Right, Qt::ShiftModifier);
  QTest::keyClick(&app.window(), Qt::Key_Right, Qt::ShiftModifier);
  QTest::keyClick(&app.window(), Qt::Key_V, Qt::ControlModifier);
  app.settle();
  EXPECT_EQ(shownWords("userEmail"), "ax yd");
  EXPECT_EQ(app.require("userEmail").property("cursorPosition").toInt(), 4);
}

TEST_F(InputTest, LinesGivenByAnInputMethodAreJoinedToo) {
  type("userEmail", "<>");
  app.press(Qt::Key_Left);
  QInputMethodEvent committing;
  committing.setCommitString("\nwr\nen\n");
  QCoreApplication::sendEvent(&app.require("userEmail"), &committing);
  app.settle();
  EXPECT_EQ(shownWords("userEmail"), "<wr en>");
  committing.setCommitString("a\n<\n", -5, 6);  // over all but the first
  QCoreApplication::sendEvent(&app.require("userEmail"), &committing);
  app.settle();
  EXPECT_EQ(shownWords("userEmail"), "<a <");
}

TEST_F(InputTest, AHundredThousandLinesArePastedIntoAFieldWithinTwoSeconds) {
  QGuiApplication::clipboard()->setText("a" + QString(100'000, '\n') + "b");
  click("userEmail");
  QElapsedTimer timer;
  timer.start();
  QTest::keyClick(&app.window(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_LT(timer.elapsed(), 2000);
  EXPECT_EQ(shownWords("userEmail").size(), 100'002);
}

TEST_F(InputTest, AFocusThatTheWindowGivesBackIsNotAUserEnteringAnInput) {
  click("signInButton");
  auto& input = app.require("userEmail");
  input.forceActiveFocus(Qt::ActiveWindowFocusReason);
  app.settle();
  EXPECT_EQ(shownWords("userEmail"), "Error: Please Enter a Name");
}

TEST_F(InputTest, ReturnLeavesAFieldOfTheFormAndMakesANewLineInATextView) {
  signIn();
  click("mineTab");
  click("newButton");
  type("nameOfCreator", "Wren");
  app.press(Qt::Key_Return);
  EXPECT_FALSE(app.require("nameOfCreator").hasActiveFocus());
  type("shortDescription", "a");
  app.press(Qt::Key_Return);
  app.typeKeys("b");
  EXPECT_EQ(shownWords("shortDescription"), "a\nb");
  EXPECT_EQ(app.shown()->className(), "NewCampaignVC");
}

TEST_F(InputTest, ReturnLeadsFromInputToInputAndEndsInTheLast) {
  const auto expectWalk = [this](const std::vector<std::string>& inputs) {
    click(inputs.front());
    for (const auto& name : inputs) {
      EXPECT_TRUE(app.require(name).hasActiveFocus()) << name;
      const auto editing = app.application->firstResponder();
      ASSERT_NE(editing, nullptr) << name;
      EXPECT_EQ(editing->name(), name);
      app.press(Qt::Key_Return);
      app.settle();
    }
    EXPECT_EQ(app.application->firstResponder(), nullptr);
    EXPECT_FALSE(app.require(inputs.back()).hasActiveFocus());
  };
  expectWalk({"userEmail", "password"});
  EXPECT_EQ(app.shown()->className(), "LandingPageVC");
  click("signUpButton");
  expectWalk({"nameField", "passwordField", "passwordConfirmField"});
  EXPECT_EQ(app.shown()->className(), "SignUpVC");
}

TEST_F(InputTest, ReturnNeverSubmits) {
  type("userEmail", "a");
  type("password", "b");
  app.press(Qt::Key_Return);
  EXPECT_EQ(app.shown()->className(), "LandingPageVC");
}

TEST_F(InputTest, ATapBesideTheFormsInputsEndsEditing) {
  signIn();
  click("mineTab");
  click("newButton");
  click("nameOfCampaign");
  ASSERT_NE(app.application->firstResponder(), nullptr);
  QTest::mouseClick(&app.window(), Qt::LeftButton, {}, QPoint(8, 400));
  EXPECT_EQ(app.application->firstResponder(), nullptr);
  EXPECT_FALSE(app.require("nameOfCampaign").hasActiveFocus());
}

TEST_F(InputTest, AKeyThatIsHeldDownPressesOnce) {
  click("signInButton");
  EXPECT_EQ(app.shown()->className(), "LandingPageVC");
  QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
  QCoreApplication::sendEvent(&app.window(), &repeated);
  app.settle();
  EXPECT_EQ(app.shown()->className(), "LandingPageVC");
  app.press(Qt::Key_Return);  // pressed anew, it signs in with the messages
  app.settle();
  EXPECT_NE(app.shown()->className(), "LandingPageVC");
}

TEST_F(InputTest, AMessageIsClearedAlsoAfterTheWindowWasPutAside) {
  click("userEmail");
  app.window().contentItem()->setFocus(false, Qt::ActiveWindowFocusReason);
  app.application->tap(app.shown()->view()->subviews()[4]);  // pressed by other means
  app.settle();
  EXPECT_EQ(shownWords("userEmail"), "Error: Please Enter a Name");
  app.window().contentItem()->setFocus(true, Qt::ActiveWindowFocusReason);
  click("userEmail");
  EXPECT_EQ(shownWords("userEmail"), "");
}

TEST_F(InputTest, CompositionSurvivesARefresh) {
  type("userEmail", "ab");
  QInputMethodEvent composing("\u00e9", {});
  QCoreApplication::sendEvent(&app.require("userEmail"), &composing);
  app.application->turn([this] {
    auto& input = dynamic_cast<UITextField&>(*viewNamed(app.navigation(), "userEmail"));
    input.setTextColor(input.textColor());  // also what stays the same refreshes the skin
  });
  EXPECT_EQ(app.require("userEmail").property("preeditText").toString(), "\u00e9");
  EXPECT_EQ(shownWords("userEmail"), "ab");
  QInputMethodEvent committing;
  committing.setCommitString("\u00e9");
  QCoreApplication::sendEvent(&app.require("userEmail"), &committing);
  EXPECT_EQ(shownWords("userEmail"), "ab\u00e9");
}

}  // namespace
}  // namespace leafund
