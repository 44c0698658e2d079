#include <QColor>

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

TEST_F(GlassInputTest, AWindowThatComesToTheFrontIsNotAUserEnteringAnInput) {
  click("signInButton");
  auto& input = app.require("userEmail");
  input.forceActiveFocus(Qt::ActiveWindowFocusReason);
  app.settle();
  EXPECT_EQ(glassText("userEmail"), "Error: Please Enter a Name");
}

}  // namespace
}  // namespace leafund
