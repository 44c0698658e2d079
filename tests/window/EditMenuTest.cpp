#include <QStyleHints>

#include "model/Catalogue.h"
#include "tests/window/EditMenuFixture.h"

namespace leafund {
namespace {

using EditMenuTest = EditMenuFixture;

TEST_F(EditMenuTest, ARightClickOffersWhatCanBeDoneAndDoesIt) {
  openForm();
  for (const auto* name : {"nameOfCreator", "shortDescription"}) {
    SCOPED_TRACE(name);
    QGuiApplication::clipboard()->clear();
    type(name, "green");
    rightClick(name);
    EXPECT_EQ(offers(), (Names{"Select all"}));
    choose("Select all");
    EXPECT_EQ(menu(), nullptr);
    EXPECT_EQ(selected(name), "green");
    rightClick(name);
    EXPECT_EQ(offers(), (Names{"Cut", "Copy"}));
    choose("Copy");
    EXPECT_EQ(clipboard(), "green");
    rightClick(name);
    choose("Cut");
    EXPECT_EQ(shownWords(name), "");
    EXPECT_EQ(app.application->firstResponder()->text(), "");
    rightClick(name);
    EXPECT_EQ(offers(), (Names{"Paste"}));
    choose("Paste");
    EXPECT_EQ(app.application->firstResponder()->text(), "green");
    EXPECT_TRUE(app.require(name).hasActiveFocus());
  }
}

TEST_F(EditMenuTest, WhatIsPastedOverAMessageTakesItsPlace) {
  openForm();
  click("createButton");
  QGuiApplication::clipboard()->setText("Wren");
  for (const auto* name : {"nameOfCreator", "shortDescription"}) {
    SCOPED_TRACE(name);
    EXPECT_TRUE(shownWords(name).startsWith("Error")) << shownWords(name).toStdString();
    rightClick(name);
    EXPECT_EQ(offers(), (Names{"Cut", "Copy", "Paste"}));
    choose("Paste");
    EXPECT_EQ(shownWords(name), "Wren");
  }
}

TEST_F(EditMenuTest, WhereNothingCanBeDoneNothingIsShown) {
  QGuiApplication::clipboard()->clear();
  rightClick("userEmail");
  EXPECT_EQ(menu(), nullptr);
  EXPECT_TRUE(app.require("userEmail").hasActiveFocus());
}

TEST_F(EditMenuTest, WhatIsMaskedIsNeitherCutNorCopied) {
  QGuiApplication::clipboard()->setText("before");
  type("password", "secret");
  QTest::keyClick(&app.window(), Qt::Key_A, Qt::ControlModifier);
  rightClick("password");
  EXPECT_EQ(offers(), (Names{"Paste"}));
  EXPECT_EQ(clipboard(), "before");
}

TEST_F(EditMenuTest, TheInputIsNotLeftForIt) {
  type("userEmail", "wren");
  const auto editing = app.application->firstResponder();
  rightClick("userEmail");
  ASSERT_NE(menu(), nullptr);
  EXPECT_EQ(app.application->firstResponder(), editing);
  app.press(Qt::Key_Escape);
  EXPECT_EQ(app.application->firstResponder(), editing);
  EXPECT_TRUE(app.require("userEmail").hasActiveFocus());
}

TEST_F(EditMenuTest, ByKeysItIsOpenedGoneThroughAndClosedAndEscapeIsThenNoWayBack) {
  click("signUpButton");
  type("nameField", "Wren");
  QTest::keyClick(&app.window(), Qt::Key_A, Qt::ControlModifier);
  QGuiApplication::clipboard()->setText("x");
  for (const auto& [key, modifiers] :
       {std::pair(Qt::Key_Menu, Qt::KeyboardModifiers()),
        std::pair(Qt::Key_F10, Qt::KeyboardModifiers(Qt::ShiftModifier))}) {
    app.press(key, modifiers);
    EXPECT_EQ(offers(), (Names{"Cut", "Copy", "Paste"}));
    EXPECT_EQ(app.window().activeFocusItem()->objectName(), "Cut");
    app.press(Qt::Key_Up);
    EXPECT_EQ(app.window().activeFocusItem()->objectName(), "Paste");
    app.press(Qt::Key_Tab);
    app.press(Qt::Key_Down);
    EXPECT_EQ(app.window().activeFocusItem()->objectName(), "Copy");
    app.press(Qt::Key_Escape);
    EXPECT_EQ(menu(), nullptr);
    EXPECT_EQ(app.shown()->className(), "SignUpVC");
  }
  app.press(Qt::Key_Menu);
  app.press(Qt::Key_Down);
  app.press(Qt::Key_Return);
  EXPECT_EQ(clipboard(), "Wren");
  app.press(Qt::Key_Escape);
  EXPECT_EQ(app.shown()->className(), "LandingPageVC");
}

TEST_F(EditMenuTest, ATapBesideItClosesItAndDoesNothingElse) {
  type("userEmail", "wren");
  rightClick("userEmail");
  ASSERT_NE(menu(), nullptr);
  const auto button = middleOf("signUpButton");
  QTest::mouseClick(&app.window(), Qt::LeftButton, {}, button);
  EXPECT_EQ(menu(), nullptr);
  EXPECT_EQ(app.shown()->className(), "LandingPageVC");
  EXPECT_TRUE(app.require("userEmail").hasActiveFocus());
}

TEST_F(EditMenuTest, ALongPressOfAFingerOpensItAndLeavesItOpenWhenLifted) {
  openForm();
  for (const auto* name : {"nameOfCreator", "shortDescription"}) {
    SCOPED_TRACE(name);
    type(name, "green");
    const auto where = middleOf(name);
    put(where);
    EXPECT_TRUE(app.waitUntil([this] { return menu() != nullptr; }));
    lift(where);
    app.settle();
    ASSERT_NE(menu(), nullptr);
    app.press(Qt::Key_Escape);
    EXPECT_EQ(app.shown()->className(), "NewCampaignVC");
  }
}

TEST_F(EditMenuTest, ADescriptionIsCopiedWhole) {
  signIn();
  click("abc-0");
  rightClick("campaignText");
  EXPECT_EQ(offers(), (Names{"Copy"}));
  choose("Copy");
  EXPECT_EQ(clipboard().toStdString(), otherCampaigns()[0]->campaignDescription());
}

TEST_F(EditMenuTest, ItLiesInsideTheWindow) {
  app.window().resize(280, 240);
  ASSERT_TRUE(app.waitUntil([&] { return app.page()->width() == 280; }));
  QGuiApplication::clipboard()->setText("x");
  type("password", "wren");
  type("userEmail", "wren");
  QTest::keyClick(&app.window(), Qt::Key_Left, Qt::ShiftModifier);
  rightClick("userEmail");
  EXPECT_EQ(offers(), (Names{"Cut", "Copy", "Paste", "Select all"}));
  for (const auto* offer : offerItems()) {
    const QRectF area = offer->mapRectToScene(offer->boundingRect());
    EXPECT_TRUE(QRectF({0, 0}, app.window().size()).contains(area)) << area.y();
    EXPECT_GE(area.height(), 48);
  }
}

}  // namespace
}  // namespace leafund
