#include <gtest/gtest.h>

#include "screens/create/NewCampaignVC.h"
#include "tests/support/HeadlessApplication.h"

namespace leafund {
namespace {

class NewCampaignUserTest : public testing::Test {
 protected:
  void SetUp() override {
    app.signIn();
    app.tap("mineTab");
    app.tap("newButton");
  }
  HeadlessApplication app;
};

TEST_F(NewCampaignUserTest, TheReturnKeyEndsEditingAndNeverSubmits) {
  for (const auto* name : {"nameOfCreator", "nameOfCampaign", "desiredFunding", "imageURL"}) {
    const auto field = app.viewAs<UITextField>(name);
    app.application->beginEditing(field);
    EXPECT_TRUE(field->editing());
    app.application->pressReturn(field);
    EXPECT_FALSE(field->editing()) << name;
  }
  EXPECT_EQ(app.shown()->className(), "NewCampaignVC");
  EXPECT_EQ(app.shownAs<NewCampaignVC>()->textFieldShouldReturn(nullptr), false);
}

TEST_F(NewCampaignUserTest, ATapBesideTheInputsEndsEditing) {
  const auto area = app.viewAs<UITextInput>("fullDescription");
  app.application->beginEditing(area);
  app.application->tap(app.shown()->view());
  EXPECT_FALSE(area->editing());
}

TEST_F(NewCampaignUserTest, GoingBackAndReturningMakesANewForm) {
  app.type("nameOfCreator", "Wren");
  app.application->resize({844, 390});
  EXPECT_EQ(app.text("nameOfCreator"), "Wren");
  app.application->goBack();
  app.tap("newButton");
  EXPECT_EQ(app.text("nameOfCreator"), "");
}

}  // namespace
}  // namespace leafund
