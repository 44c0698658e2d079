#include <QSignalSpy>

#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

// What assistive technology is told while a text changes: an input that is written over tells what
// it held, in clear, so that a password must be gone before.
class AccessibilityTextTest : public WindowTest {
 protected:
  // How often the window changes until the text written by the application stands there.
  int changesUntil(const std::string& name, const QString& text) {
    QSignalSpy changes(&app.require(name), SIGNAL(textChanged()));
    click("signUpButton");
    EXPECT_EQ(shownWords(name), text);
    return static_cast<int>(changes.count());
  }
};

TEST_F(AccessibilityTextTest, APasswordIsTakenAwayBeforeAMessageIsWrittenInItsPlace) {
  click("signUpButton");
  type("nameField", "wren");
  type("passwordField", "alpha");
  type("passwordConfirmField", "beta");
  EXPECT_EQ(changesUntil("passwordConfirmField", "Error: Passwords Do Not Match"), 2);
  EXPECT_EQ(shownWords("passwordField"), "alpha");
}

}  // namespace
}  // namespace leafund
