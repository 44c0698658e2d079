#include <QScreen>

#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

// The input in which the user writes stays in sight when a keyboard in the window takes half of the
// window. The parameter is the system's font resolution.
class InSightTest : public testing::TestWithParam<int> {
 protected:
  static constexpr int kHeight = 844;
  static constexpr int kShortHeight = 420;

  // Before the application is made, which reads them. Without the second, not the texts alone but
  // the whole window would be drawn larger.
  const bool resolutionSet_ = qputenv("QT_FONT_DPI", QByteArray::number(GetParam())) &&
                              qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
  WindowApplication app;

  void click(const std::string& name) {
    app.click(app.require(name));
    app.settle();
  }
  void type(const std::string& name, const std::string& text) {
    click(name);
    app.typeKeys(text);
  }
  void signIn() {
    type("userEmail", "wren@example.org");
    type("password", "secret");
    click("signInButton");
  }

  void expectInSight(const std::string& name) {
    auto& input = app.require(name);
    ASSERT_TRUE(input.hasActiveFocus()) << name;
    const auto caret = input.property("cursorRectangle").toRectF();
    const QRectF seen = input.mapRectToScene(caret);
    EXPECT_GE(seen.top(), app.paneOf(input).top()) << name;
    EXPECT_LE(seen.bottom(), app.paneOf(input).bottom()) << name;
    EXPECT_GT(caret.height(), 10) << name;
  }
  void resizeTo(int height) {
    app.window().resize(390, height);
    ASSERT_TRUE(app.waitUntil([&] { return app.page()->height() == height; }));
    app.settle();
  }
  void expectInSightOfAShorterWindow(const std::vector<std::string>& names) {
    for (const auto& name : names) {
      click(name);
      resizeTo(kShortHeight);
      expectInSight(name);
      app.typeKeys("a");
      app.settle();
      expectInSight(name);
      resizeTo(kHeight);
    }
  }
};

TEST_P(InSightTest, InALowWindowTheButtonThatFundsStaysAtTheLowerEdgeAndWorksThere) {
  signIn();
  click("abc-0");
  const auto bottom = [this] {
    const auto& button = app.require("FundButton");
    return button.mapRectToScene(button.boundingRect()).bottom();
  };
  for (const int height : {699, kShortHeight, 320}) {
    resizeTo(height);
    EXPECT_EQ(bottom(), height - 8);
  }
  const double fixed = bottom();
  QTest::keyClick(&app.window(), Qt::Key_PageDown);
  EXPECT_EQ(bottom(), fixed);
  // Lower still it would leave too little of the page, and in a high window it follows the amount.
  resizeTo(319);
  EXPECT_GT(bottom(), 319);
  resizeTo(kShortHeight);
  type("dollarAmountField", "5");
  click("FundButton");
  EXPECT_EQ(app.shown()->className(), "ConfirmPageVC");
}

TEST_P(InSightTest, EveryInputOfEveryFormWhenTheWindowGetsShorter) {
  ASSERT_EQ(app.window().screen()->logicalDotsPerInch(), GetParam());
  expectInSightOfAShorterWindow({"userEmail", "password"});
  click("signUpButton");
  expectInSightOfAShorterWindow({"nameField", "passwordField", "passwordConfirmField"});
  app.press(Qt::Key_Escape);
  app.settle();
  click("signInButton");
  click("abc-0");
  expectInSightOfAShorterWindow({"dollarAmountField"});
  app.press(Qt::Key_Escape);
  app.settle();
  click("mineTab");
  click("newButton");
  expectInSightOfAShorterWindow({"nameOfCreator", "nameOfCampaign", "shortDescription",
                                 "fullDescription", "desiredFunding", "imageURL", "emailInvite"});
}

TEST_P(InSightTest, AKeyboardInTheWindowMakesTheContentShorter) {
  signIn();
  click("abc-0");
  click("dollarAmountField");
  app.window().setKeyboardArea({0, 400, 390, 444});
  EXPECT_EQ(app.page()->height(), 400);
  app.settle();
  expectInSight("dollarAmountField");
  app.window().setKeyboardArea({100, 300, 200, 150});  // one that floats
  EXPECT_EQ(app.page()->height(), kHeight);
  app.window().setKeyboardArea({});
  EXPECT_EQ(app.page()->height(), kHeight);
}

TEST_P(InSightTest, TheControlThatTheKeyboardReachesIsInSight) {
  click("signUpButton");
  resizeTo(kShortHeight);
  for (int i = 0; i < 5; ++i) {
    QTest::keyClick(&app.window(), Qt::Key_Tab);
    app.settle();
    const auto* focused = app.window().activeFocusItem();
    const QRectF area = focused->mapRectToScene(focused->boundingRect());
    EXPECT_GE(area.top(), 0) << focused->objectName().toStdString();
    EXPECT_LE(area.bottom(), kShortHeight) << focused->objectName().toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(AtFontResolutions, InSightTest, testing::Values(96, 144));

}  // namespace
}  // namespace leafund
