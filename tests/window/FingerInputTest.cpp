#include <algorithm>

#include "tests/window/FingerFixture.h"

namespace leafund {
namespace {

// Inputs under a finger, which enters by a tap and scrolls from wherever it is put down.
class FingerInputTest : public FingerTest {
 protected:
  void openForm() {
    signIn();
    click("mineTab");
    click("newButton");
  }
  void makeHigh(int height) {
    app.window().resize(390, height);
    ASSERT_TRUE(app.waitUntil([&] { return app.page()->height() == height; }));
    app.settle();
  }
  QQuickItem& paneOf(const std::string& name) {
    auto* pane = app.require(name).parentItem();
    while (!pane->inherits("QQuickFlickable")) pane = pane->parentItem();
    return *pane;
  }
  double scrolled(const std::string& name) { return paneOf(name).property("contentY").toDouble(); }
  void scrollTo(const std::string& name) {
    auto& pane = paneOf(name);
    const double top = app.require(name).mapToItem(&pane, QPointF(0, 0)).y();
    const double lowest = pane.property("contentHeight").toDouble() - pane.height();
    const double wanted = pane.property("contentY").toDouble() + top - pane.height() / 2;
    pane.setProperty("contentY", std::clamp(wanted, 0.0, lowest));
    app.settle();
  }
};

TEST_F(FingerInputTest, ATapSelectsAMessageSoThatTypingReplacesIt) {
  click("signUpButton");
  click("signUpButton");
  for (const auto* name : {"nameField", "passwordField", "passwordConfirmField"}) {
    ASSERT_EQ(shownWords(name).left(6), "Error:") << name;
    touchItem(name);
    app.typeKeys("Wren");
    EXPECT_EQ(shownWords(name), "Wren") << name;
  }
}

TEST_F(FingerInputTest, ATapSelectsAMessageOfTheCampaignFormToo) {
  openForm();
  click("createButton");
  for (const auto* name : {"nameOfCreator", "shortDescription", "fullDescription", "imageURL"}) {
    scrollTo(name);
    ASSERT_EQ(shownWords(name).left(6), "Error:") << name;
    touchItem(name);
    app.typeKeys("W");
    EXPECT_EQ(shownWords(name), "W") << name;
  }
}

TEST_F(FingerInputTest, ATapClearsAMessageOfTheLandingScreen) {
  touchItem("signInButton");
  EXPECT_EQ(shownWords("userEmail"), "Error: Please Enter a Name");
  touchItem("userEmail");
  EXPECT_EQ(shownWords("userEmail"), "");
  app.typeKeys("wren");
  EXPECT_EQ(shownWords("userEmail"), "wren");
}

TEST_F(FingerInputTest, AMessageStaysSelectedHoweverOftenItIsTapped) {
  click("signUpButton");
  click("signUpButton");
  touchItem("nameField");
  touchItem("nameField");
  EXPECT_EQ(app.require("nameField").property("selectedText").toString(), shownWords("nameField"));
  click("passwordField");
  click("passwordField");
  app.typeKeys("x");
  EXPECT_EQ(shownWords("passwordField"), "x");
}

TEST_F(FingerInputTest, ATapPlacesTheCaretInATextOfTheUsersOwn) {
  openForm();
  for (const auto* name : {"nameOfCreator", "shortDescription"}) {
    touchItem(name);
    app.typeKeys("wren");
    app.settle();
    auto& input = app.require(name);
    touch(
        input.mapToScene({1, input.property("cursorRectangle").toRectF().center().y()}).toPoint());
    EXPECT_EQ(input.property("cursorPosition").toInt(), 0) << name;
    EXPECT_EQ(input.property("selectedText").toString(), "") << name;
  }
}

TEST_F(FingerInputTest, AFingerScrollsTheFormFromTheMiddleOfEveryInputAndEntersNone) {
  openForm();
  makeHigh(568);
  for (const auto* name : {"nameOfCreator", "nameOfCampaign", "shortDescription", "fullDescription",
                           "desiredFunding"}) {
    scrollTo(name);
    const double before = scrolled(name);
    const QPoint middle = middleOf(name);
    touch(middle, middle - QPoint(0, 150));
    EXPECT_GT(scrolled(name), before + 50) << name;
    EXPECT_FALSE(app.require(name).hasActiveFocus()) << name;
    EXPECT_EQ(app.application->firstResponder(), nullptr) << name;
  }
}

TEST_F(FingerInputTest, AFingerScrollsAlsoFromTheInputThatTheUserIsIn) {
  openForm();
  makeHigh(568);
  touchItem("shortDescription");
  app.typeKeys("green words");
  const QPoint middle = middleOf("shortDescription");
  touch(middle, middle - QPoint(0, 150));
  EXPECT_GT(scrolled("shortDescription"), 50);
  EXPECT_EQ(app.require("shortDescription").property("selectedText").toString(), "");
}

TEST_F(FingerInputTest, ScrollingFromAMessageOfTheLandingScreenKeepsIt) {
  click("signInButton");
  makeHigh(420);
  scrollTo("userEmail");
  const double before = scrolled("userEmail");
  const QPoint middle = middleOf("userEmail");
  touch(middle, middle - QPoint(0, 120));
  EXPECT_NE(scrolled("userEmail"), before);
  EXPECT_EQ(shownWords("userEmail"), "Error: Please Enter a Name");
}

TEST_F(FingerInputTest, ThePointerStillSelectsByADrag) {
  openForm();
  for (const auto* name : {"nameOfCreator", "shortDescription"}) {
    type(name, "wren");
    auto& input = app.require(name);
    const double line = input.property("cursorRectangle").toRectF().center().y();
    const QPoint from = input.mapToScene({1, line}).toPoint();
    QTest::mouseMove(&app.window(), from);
    QTest::mousePress(&app.window(), Qt::LeftButton, {}, from);
    for (int x = 0; x <= 200; x += 20) QTest::mouseMove(&app.window(), from + QPoint(x, 0));
    QTest::mouseRelease(&app.window(), Qt::LeftButton, {}, from + QPoint(200, 0));
    EXPECT_EQ(input.property("selectedText").toString(), "wren") << name;
  }
}

}  // namespace
}  // namespace leafund
