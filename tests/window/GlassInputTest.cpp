#include <QClipboard>
#include <QColor>
#include <QElapsedTimer>
#include <QGuiApplication>

#include "tests/window/GlassFixture.h"

namespace leafund {
namespace {

using GlassInputTest = GlassTest;

TEST_F(GlassInputTest, APasswordIsMaskedOnTheGlassAndItsMessageReadInClear) {
  type("password", "secret");
  EXPECT_EQ(app.require("password").property("displayText").toString(), QString(6, QChar(0x25CF)));
  EXPECT_EQ(glassText("password"), "secret");
  QTest::keyClick(&app.window(), Qt::Key_A, Qt::ControlModifier);
  app.press(Qt::Key_Delete);
  click("signInButton");
  EXPECT_EQ(app.require("password").property("displayText").toString(),
            "Error: Please Enter a Password");
  EXPECT_EQ(app.require("password").property("color").value<QColor>(), QColor(Qt::red));
}

TEST_F(GlassInputTest, EnteringAnInputThatShowsAMessageClearsItAndTypedTextStays) {
  click("signInButton");
  EXPECT_EQ(glassText("userEmail"), "Error: Please Enter a Name");
  type("userEmail", "wren");
  EXPECT_EQ(glassText("userEmail"), "wren");
  click("password");
  click("userEmail");
  EXPECT_EQ(glassText("userEmail"), "wren");
}

TEST_F(GlassInputTest, EnteringTheFormsInputsSelectsAMessageSoThatTypingReplacesIt) {
  click("signUpButton");
  click("signUpButton");
  EXPECT_EQ(glassText("nameField"), "Error: Please Enter a Name");
  type("nameField", "Wren");
  EXPECT_EQ(glassText("nameField"), "Wren");
  EXPECT_EQ(app.require("nameField").property("color").value<QColor>(), QColor(Qt::red));
}

TEST_F(GlassInputTest, TypingInTheMiddleKeepsTheCursorThere) {
  type("userEmail", "ac");
  app.press(Qt::Key_Left);
  app.typeKeys("b");
  app.settle();
  EXPECT_EQ(glassText("userEmail"), "abc");
  EXPECT_EQ(app.require("userEmail").property("cursorPosition").toInt(), 2);
}

TEST_F(GlassInputTest, LinesPastedIntoAFieldOfOneLineAreJoinedByBlanks) {
  const auto pasteBetween = [&](const char* name, const QString& lines) {
    QGuiApplication::clipboard()->setText(lines);
    QTest::keyClick(&app.window(), Qt::Key_A, Qt::ControlModifier);
    app.typeKeys("<>");
    app.press(Qt::Key_Left);
    QTest::keyClick(&app.window(), Qt::Key_V, Qt::ControlModifier);
    app.typeKeys("!");
    app.settle();
    return glassText(name);
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

TEST_F(GlassInputTest, LinesPastedOverASelectionTakeItsPlaceAndTheCaretStandsBehindThem) {
  QGuiApplication::clipboard()->setText("\nx\ny\n");
  type("userEmail", "abcd");
  for (const auto key : {Qt::Key_Left, Qt::Key_Left, Qt::Key_Left}) app.press(key);
  QTest::keyClick(&app.window(), Qt::Key_Right, Qt::ShiftModifier);
  QTest::keyClick(&app.window(), Qt::Key_Right, Qt::ShiftModifier);
  QTest::keyClick(&app.window(), Qt::Key_V, Qt::ControlModifier);
  app.settle();
  EXPECT_EQ(glassText("userEmail"), "ax yd");
  EXPECT_EQ(app.require("userEmail").property("cursorPosition").toInt(), 4);
}

TEST_F(GlassInputTest, LinesGivenByAnInputMethodAreJoinedToo) {
  type("userEmail", "<>");
  app.press(Qt::Key_Left);
  QInputMethodEvent committing;
  committing.setCommitString("\nwr\nen\n");
  QCoreApplication::sendEvent(&app.require("userEmail"), &committing);
  app.settle();
  EXPECT_EQ(glassText("userEmail"), "<wr en>");
  committing.setCommitString("a\n<\n", -5, 6);  // over all but the first
  QCoreApplication::sendEvent(&app.require("userEmail"), &committing);
  app.settle();
  EXPECT_EQ(glassText("userEmail"), "<a <");
}

TEST_F(GlassInputTest, AHundredThousandLinesArePastedIntoAFieldWithinTwoSeconds) {
  QGuiApplication::clipboard()->setText("a" + QString(100'000, '\n') + "b");
  click("userEmail");
  QElapsedTimer timer;
  timer.start();
  QTest::keyClick(&app.window(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_LT(timer.elapsed(), 2000);
  EXPECT_EQ(glassText("userEmail").size(), 100'002);
}

TEST_F(GlassInputTest, AFocusThatTheWindowGivesBackIsNotAUserEnteringAnInput) {
  click("signInButton");
  auto& input = app.require("userEmail");
  input.forceActiveFocus(Qt::ActiveWindowFocusReason);
  app.settle();
  EXPECT_EQ(glassText("userEmail"), "Error: Please Enter a Name");
}

TEST_F(GlassInputTest, ReturnLeavesAFieldOfTheFormAndMakesANewLineInATextView) {
  signIn();
  click("mineTab");
  click("newButton");
  type("nameOfCreator", "Wren");
  app.press(Qt::Key_Return);
  EXPECT_FALSE(app.require("nameOfCreator").hasActiveFocus());
  type("shortDescription", "a");
  app.press(Qt::Key_Return);
  app.typeKeys("b");
  EXPECT_EQ(glassText("shortDescription"), "a\nb");
  EXPECT_EQ(app.shown()->className(), "NewCampaignVC");
}

TEST_F(GlassInputTest, ReturnNeverSubmits) {
  type("userEmail", "a");
  type("password", "b");
  app.press(Qt::Key_Return);
  EXPECT_EQ(app.shown()->className(), "LandingPageVC");
}

TEST_F(GlassInputTest, ATapBesideTheFormsInputsEndsEditing) {
  signIn();
  click("mineTab");
  click("newButton");
  click("nameOfCampaign");
  ASSERT_NE(app.application->firstResponder(), nullptr);
  QTest::mouseClick(&app.window(), Qt::LeftButton, {}, QPoint(8, 400));
  EXPECT_EQ(app.application->firstResponder(), nullptr);
  EXPECT_FALSE(app.require("nameOfCampaign").hasActiveFocus());
}

TEST_F(GlassInputTest, AKeyThatIsHeldDownPressesOnce) {
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

TEST_F(GlassInputTest, AMessageIsClearedAlsoAfterTheWindowWasPutAside) {
  click("userEmail");
  app.window().contentItem()->setFocus(false, Qt::ActiveWindowFocusReason);
  app.application->tap(app.shown()->view()->subviews()[4]);  // pressed by other means
  app.settle();
  EXPECT_EQ(glassText("userEmail"), "Error: Please Enter a Name");
  app.window().contentItem()->setFocus(true, Qt::ActiveWindowFocusReason);
  click("userEmail");
  EXPECT_EQ(glassText("userEmail"), "");
}

TEST_F(GlassInputTest, CompositionSurvivesARefresh) {
  type("userEmail", "ab");
  QInputMethodEvent composing("\u00e9", {});
  QCoreApplication::sendEvent(&app.require("userEmail"), &composing);
  app.application->turn([] {});
  EXPECT_EQ(app.require("userEmail").property("preeditText").toString(), "\u00e9");
  EXPECT_EQ(glassText("userEmail"), "ab");
  QInputMethodEvent committing;
  committing.setCommitString("\u00e9");
  QCoreApplication::sendEvent(&app.require("userEmail"), &committing);
  EXPECT_EQ(glassText("userEmail"), "ab\u00e9");
}

}  // namespace
}  // namespace leafund
