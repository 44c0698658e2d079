#include <QStyleHints>

#include "platform/uikit/UITextInput.h"
#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

// A message in the first input, to which the window gave the focus: nobody has entered it.
class EnteringTest : public WindowTest {
 protected:
  void SetUp() override {
    click("signInButton");
    app.require("userEmail").forceActiveFocus(Qt::ActiveWindowFocusReason);
    app.settle();
    ASSERT_EQ(shownWords("userEmail"), kMessage);
    ASSERT_EQ(editedName(), "");
  }
  std::string editedName() {
    const auto input = app.application->firstResponder();
    return input ? input->name() : "";
  }

  const QString kMessage = "Error: Please Enter a Name";
};

TEST_F(EnteringTest, WhoTypesHasEntered) {
  app.typeKeys("w");
  app.settle();
  EXPECT_EQ(editedName(), "userEmail");
  EXPECT_EQ(shownWords("userEmail"), "w");
}

TEST_F(EnteringTest, WhoComposesHasEntered) {
  QInputMethodEvent composing("\u00e9", {});
  QCoreApplication::sendEvent(&app.require("userEmail"), &composing);
  app.settle();
  EXPECT_EQ(editedName(), "userEmail");
  EXPECT_EQ(shownWords("userEmail"), "");
}

TEST_F(EnteringTest, WhoPressesTheCaptionSlowlyHasEntered) {
  const auto caption = app.require("userEmail").mapToScene({20, -8}).toPoint();
  QTest::mousePress(&app.window(), Qt::LeftButton, {}, caption);
  QTest::qWait(QGuiApplication::styleHints()->mousePressAndHoldInterval() + 50);
  QTest::mouseRelease(&app.window(), Qt::LeftButton, {}, caption);
  app.settle();
  EXPECT_EQ(editedName(), "userEmail");
}

TEST_F(EnteringTest, WhoMovesTheCaretHasNot) {
  app.press(Qt::Key_Left);
  app.press(Qt::Key_Shift);
  app.settle();
  EXPECT_EQ(editedName(), "");
  EXPECT_EQ(shownWords("userEmail"), kMessage);
}

TEST_F(EnteringTest, WhoPutsTheWindowAsideIsStillInTheInput) {
  app.typeKeys("w");
  for (const auto reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
    app.window().contentItem()->setFocus(false, reason);
    app.settle();
    EXPECT_EQ(editedName(), "userEmail");
    app.window().contentItem()->setFocus(true, reason);
  }
}

}  // namespace
}  // namespace leafund
