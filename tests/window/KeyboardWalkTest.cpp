#include "model/Catalogue.h"
#include "tests/window/KeyboardFixture.h"

namespace leafund {
namespace {

class KeyboardWalkTest : public KeyboardTest {
 protected:
  void signInByKeys() {
    typeAt("userEmail", "wren@example.org");
    typeAt("password", "secret");
    pressAt("signInButton");
  }
};

TEST_F(KeyboardWalkTest, TheWholePledgeRoadIsGoneByKeysAlone) {
  signInByKeys();
  ASSERT_EQ(app.shown()->className(), "OtherCampaignsTableViewController");
  EXPECT_EQ(focusedName(), "barTitle");
  pressAt("abc-0");
  typeAt("dollarAmountField", "81");
  pressAt("FundButton", Qt::Key_Space);
  EXPECT_EQ(shownWords("errorLabel"), "Error: Donation Exceeds Maximum");
  EXPECT_EQ(focusedName(), "FundButton");
  key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(focusedName(), "dollarAmountField");
  key(Qt::Key_A, Qt::ControlModifier);
  app.typeKeys("80");
  pressAt("FundButton");
  pressAt("noButton");
  EXPECT_EQ(focusedName(), "FundButton");
  key(Qt::Key_Return);
  pressAt("yesButton");
  EXPECT_EQ(app.shown()->className(), "ThankYouVC");
  pressAt("homeButton");
  EXPECT_EQ(focusedName(), "abc-0");
  pressAt("fundedTab");
  EXPECT_EQ(focusedName(), "fundedTab");
  pressAt("Funded-0");
  EXPECT_EQ(shownWords("campaignTitle"), "Vegetarian for PETA");
  EXPECT_EQ(campaignsIFunded()[0]->currFunding(), 200.0F);
  key(Qt::Key_Escape);
  EXPECT_EQ(focusedName(), "Funded-0");
  pressAt("Funded-1");
  pressAt("campaignUpdates");
  EXPECT_EQ(app.shown()->className(), "UpdatePageVC");
  key(Qt::Key_Back);
  EXPECT_EQ(focusedName(), "campaignUpdates");
  pressAt("backButton");
  EXPECT_EQ(focusedName(), "Funded-1");
}

TEST_F(KeyboardWalkTest, ACampaignIsCreatedByKeysAlone) {
  signInByKeys();
  pressAt("mineTab");
  const auto before = myUnfundedCampaigns().size();
  pressAt("newButton");
  pressAt("createButton");
  EXPECT_EQ(shownWords("nameOfCampaign").left(6), "Error:");
  for (const auto* name :
       {"nameOfCreator", "nameOfCampaign", "shortDescription", "fullDescription", "imageURL"}) {
    tabTo(name);
    key(Qt::Key_A, Qt::ControlModifier);
    app.typeKeys(std::string(name) == "imageURL" ? "http://127.0.0.1/none.jpg" : "Wren");
  }
  typeAt("desiredFunding", "250");
  pressAt("createButton");
  ASSERT_EQ(app.shown()->className(), "ThankYouVC");
  EXPECT_EQ(myUnfundedCampaigns().size(), before + 1);
  key(Qt::Key_Escape);  // there is no way back from here
  EXPECT_EQ(app.shown()->className(), "ThankYouVC");
  pressAt("homeButton");
  EXPECT_EQ(app.shown()->className(), "MyProfileVC");
  EXPECT_EQ(focusedName(), "newButton");
}

TEST_F(KeyboardWalkTest, AnAccountIsMadeByKeysAlone) {
  pressAt("signUpButton");
  pressAt("signUpButton");
  EXPECT_EQ(shownWords("nameField").left(6), "Error:");
  for (const auto* name : {"nameField", "passwordField", "passwordConfirmField"}) {
    tabTo(name);
    key(Qt::Key_A, Qt::ControlModifier);
    app.typeKeys("secret");
  }
  pressAt("signUpButton", Qt::Key_Space);
  EXPECT_EQ(app.navigation().topViewController()->className(), "TabBarVC");
  EXPECT_EQ(currentUserName(), "secret");
}

TEST_F(KeyboardWalkTest, TabGoesThroughEveryScreenInTheOrderItIsRead) {
  using Names = std::vector<std::string>;
  EXPECT_EQ(round(), (Names{"userEmail", "password", "signInButton", "signUpButton"}));
  EXPECT_EQ(round(Qt::Key_Backtab),
            (Names{"signUpButton", "signInButton", "password", "userEmail"}));
  signInByKeys();
  pressAt("mineTab");
  EXPECT_EQ(round(), (Names{"newsTab", "newButton", "MyCampaigns-0", "MyCampaigns-1", "browseTab",
                            "fundedTab", "mineTab"}));
  pressAt("newButton");
  EXPECT_EQ(round(), (Names{"backButton", "nameOfCreator", "nameOfCampaign", "shortDescription",
                            "fullDescription", "desiredFunding", "imageURL", "emailInvite",
                            "createButton"}));
}

TEST_F(KeyboardWalkTest, TabReachesRowsBelowTheFoldAndThenTheTabs) {
  signInByKeys();
  for (int row = 0; row < 7; ++row) {
    key(Qt::Key_Tab);
    EXPECT_EQ(focusedName(), "abc-" + std::to_string(row));
    const auto& item = *focused();
    const QRectF area = item.mapRectToScene(item.boundingRect());
    EXPECT_GE(area.top(), 56);
    EXPECT_LE(area.bottom(), app.window().height() - 64);
  }
  key(Qt::Key_Tab);
  EXPECT_EQ(focusedName(), "browseTab");
}

TEST_F(KeyboardWalkTest, ThePageKeysTakeTheFocusAlong) {
  signInByKeys();
  tabTo("abc-0");
  key(Qt::Key_PageDown);
  EXPECT_EQ(focusedName(), "abc-3");
  key(Qt::Key_Return);
  EXPECT_EQ(shownWords("campaignTitle").toStdString(), otherCampaigns()[3]->title());
  key(Qt::Key_Escape);
  EXPECT_EQ(focusedName(), "abc-3");
  key(Qt::Key_PageUp);
  EXPECT_EQ(focusedName(), "abc-3");  // it is still in sight
}

TEST_F(KeyboardWalkTest, TheFocusMovesOnWhenItsRowIsGone) {
  for (int i = 0; i < 5; ++i) otherCampaigns().erase(otherCampaigns().begin());
  signInByKeys();
  tabTo("abc-1");
  key(Qt::Key_Return);
  typeAt("dollarAmountField", "1");
  pressAt("FundButton");
  pressAt("yesButton");
  pressAt("homeButton");
  EXPECT_EQ(focusedName(), "abc-0");
}

TEST_F(KeyboardWalkTest, EscapeLeadsBackAlsoFromWithinAnInputAndIsRefusedWithoutAWayBack) {
  pressAt("signUpButton");
  tabTo("nameField");
  key(Qt::Key_Escape);
  EXPECT_EQ(app.shown()->className(), "LandingPageVC");
  EXPECT_EQ(focusedName(), "signUpButton");
  key(Qt::Key_Escape);
  EXPECT_EQ(app.shown()->className(), "LandingPageVC");
}

TEST_F(KeyboardWalkTest, ReturnEndsTheEditingAndKeepsThePlaceInTheForm) {
  signInByKeys();
  pressAt("mineTab");
  pressAt("newButton");
  typeAt("nameOfCampaign", "Wren");
  key(Qt::Key_Return);
  EXPECT_EQ(app.application->firstResponder(), nullptr);
  EXPECT_NE(focusedName(), "nameOfCampaign");
  key(Qt::Key_Tab);
  EXPECT_EQ(focusedName(), "shortDescription");
  tabTo("imageURL");
  key(Qt::Key_Return);
  key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(focusedName(), "imageURL");
}

TEST_F(KeyboardWalkTest, ATapBesideTheInputsKeepsThePlaceInTheForm) {
  signIn();
  click("mineTab");
  click("newButton");
  click("nameOfCampaign");
  QTest::mouseClick(&app.window(), Qt::LeftButton, {}, QPoint(8, 400));
  EXPECT_EQ(app.application->firstResponder(), nullptr);
  key(Qt::Key_Tab);
  EXPECT_EQ(focusedName(), "shortDescription");
}

TEST_F(KeyboardWalkTest, TheArrowsScrollAfterReturn) {
  signInByKeys();
  pressAt("mineTab");
  pressAt("newButton");
  tabTo("nameOfCreator");
  key(Qt::Key_Return);
  auto* pane = focused();
  while (pane != nullptr && !pane->inherits("QQuickFlickable")) pane = pane->parentItem();
  ASSERT_NE(pane, nullptr);
  key(Qt::Key_Down);
  EXPECT_GT(pane->property("contentY").toDouble(), 0);
}

TEST_F(KeyboardWalkTest, WhoUsesThePointerSeesNoRing) {
  signIn();  // by clicks and typing, the last of it a click
  ASSERT_NE(focused(), nullptr);
  for (const auto* item : app.page()->findChildren<QQuickItem*>()) {
    if (!QByteArray(item->metaObject()->className()).startsWith("FocusRing")) continue;
    EXPECT_FALSE(item->isVisible());
  }
}

}  // namespace
}  // namespace leafund
