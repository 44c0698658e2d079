#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

// A window too short for its screen shows what the user has to see now.
class RevealTest : public WindowTest {
 protected:
  void openForm() {
    signIn();
    click("mineTab");
    click("newButton");
  }
  void resizeTo(QSize size) {
    app.window().resize(size);
    ASSERT_TRUE(app.waitUntil([&] { return app.page()->height() == size.height(); }));
    app.settle();
  }
  QRectF seenAt(const std::string& name) {
    auto& item = app.require(name);
    return item.mapRectToScene(item.boundingRect());
  }
  QRectF caretOf(const std::string& name) {
    auto& item = app.require(name);
    return item.mapRectToScene(item.property("cursorRectangle").toRectF());
  }
  // The frame may take a moment to follow.
  void expectInSight(const std::string& name, const char* what, bool caretAlone = false) {
    const QRectF pane = app.paneOf(app.require(name));
    const auto area = [&] { return caretAlone ? caretOf(name) : seenAt(name); };
    app.settle();
    EXPECT_TRUE(app.waitUntil([&] {
      return area().top() >= pane.top() && area().bottom() <= pane.bottom();
    })) << what
        << ": " << area().top() << " to " << area().bottom();
  }
  void expectCaretInSight(const std::string& name, const char* what) {
    expectInSight(name, what, true);
  }
};

TEST_F(RevealTest, TheCaretStaysInSightWhereverKeysTakeItInALongText) {
  openForm();
  resizeTo({390, 420});
  click("fullDescription");
  for (int i = 0; i < 25; ++i) {
    app.typeKeys("a");
    app.press(Qt::Key_Return);
  }
  expectCaretInSight("fullDescription", "at the end");
  for (int i = 0; i < 20; ++i) app.press(Qt::Key_Up);
  expectCaretInSight("fullDescription", "twenty lines above");
  QTest::keyClick(&app.window(), Qt::Key_End, Qt::ControlModifier);
  expectCaretInSight("fullDescription", "at the end again");
}

TEST_F(RevealTest, WhatIsMissingIsScrolledIntoSightAndTheFocusStays) {
  openForm();
  resizeTo({390, 568});
  type("nameOfCampaign", "Rain Barrels");
  type("shortDescription", "Catch it");
  type("fullDescription", "A barrel under every gutter.");
  type("desiredFunding", "250");
  type("imageURL", "http://pictures.example/a.jpg");
  click("createButton");
  ASSERT_EQ(app.shown()->className(), "NewCampaignVC");
  expectInSight("nameOfCreator", "the missing name");
  EXPECT_EQ(app.window().activeFocusItem(), &app.require("createButton"));
}

TEST_F(RevealTest, OfSeveralMessagesTheTopmostIsScrolledIntoSight) {
  openForm();
  resizeTo({390, 568});
  click("createButton");
  expectInSight("nameOfCreator", "the first message");
}

TEST_F(RevealTest, AMessageStaysInSightThoughItsPlaceIsRoundedToWholePixels) {
  openForm();
  resizeTo({390, 568});
  click("createButton");
  expectInSight("nameOfCreator", "the first message");
  QObject* pane = nullptr;
  for (auto* each = app.require("nameOfCreator").parentItem(); pane == nullptr;
       each = each->parentItem()) {
    if (each->inherits("QQuickFlickable")) pane = each;
  }
  pane->setProperty("contentY", 0.4);  // by the pane itself, and not by a user who goes on
  resizeTo({390, 520});
  expectInSight("nameOfCreator", "the first message, after all");
}

TEST_F(RevealTest, AReasonBelowAnInputIsScrolledIntoSight) {
  openForm();
  resizeTo({390, 568});
  type("nameOfCreator", "Wren");
  type("nameOfCampaign", "Rain Barrels");
  type("shortDescription", "Catch it");
  type("fullDescription", "A barrel under every gutter.");
  type("desiredFunding", "much");
  type("imageURL", "http://pictures.example/a.jpg");
  click("createButton");
  ASSERT_TRUE(app.require("moneyErrorField").isVisible());
  expectInSight("moneyErrorField", "the reason");
}

TEST_F(RevealTest, WhyAnAmountIsRefusedIsScrolledIntoSight) {
  signIn();
  for (const QSize size : {QSize(844, 390), QSize(280, 240)}) {
    SCOPED_TRACE(testing::Message() << size.width() << "x" << size.height());
    resizeTo(size);
    for (const std::string amount : {"much", "100000000"}) {
      for (const bool byKey : {false, true}) {
        SCOPED_TRACE(testing::Message() << amount << (byKey ? " by a key" : " by a click"));
        click("abc-0");
        type("dollarAmountField", amount);
        if (byKey) {
          QTest::keyClick(&app.window(), Qt::Key_Tab);
          app.press(Qt::Key_Return);
        } else {
          click("FundButton");
        }
        ASSERT_TRUE(app.require("errorLabel").isVisible());
        expectInSight("errorLabel", "the reason");
        for (int i = 0; i < 5; ++i) app.press(Qt::Key_PageUp);
        app.settle();
        app.press(Qt::Key_Return);
        expectInSight("errorLabel", "the reason, once more");
        app.press(Qt::Key_Escape);
        app.settle();
      }
    }
  }
}

TEST_F(RevealTest, OnceTheUserGoesOnTheFocusIsInSightAgain) {
  openForm();
  resizeTo({390, 568});
  click("createButton");
  QTest::keyClick(&app.window(), Qt::Key_Backtab, Qt::ShiftModifier);
  ASSERT_EQ(app.window().activeFocusItem(), &app.require("emailInvite"));
  expectCaretInSight("emailInvite", "the input in focus");
}

}  // namespace
}  // namespace leafund
