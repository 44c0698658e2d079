#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/uikit/Scene.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"
#include "tests/support/HeadlessApplication.h"
#include "tests/support/ProbeScreen.h"

namespace leafund {
namespace {

using testing::ElementsAre;

class Form : public UIViewController {
 public:
  Outlet<UILabel> nameLabel{this, "nameLabel"};
  Outlet<UIButton> sendButton{this, "sendButton"};
  Outlet<UITextField> nameField{this, "nameField"};
  Outlet<UITextView> story{this, "story"};
  Outlet<UITextView> terms{this, "terms"};
  Outlet<UIImageView> picture{this, "picture"};
  Outlet<UIProgressView> bar{this, "bar"};
  Outlet<UILabel> spare{this, "spare"};

  std::vector<Sender> sent;
  int cleared = 0;

  void sendClicked(const Sender& sender) { sent.push_back(sender); }
  void clearAction(const Sender&) {
    ++cleared;
    nameField->setText("");
  }
};

void formScene(Scene<Form>& scene, Form& form) {
  scene.title("Form");
  scene.words("hello", "Hello");
  scene.label(form.nameLabel, "Name");
  auto& name = scene.field(
      form.nameField,
      {.placeholder = "Your name", .keyboard = UIKeyboardType::EmailAddress, .secure = true});
  scene.onEnteringMessage(name, "clearAction:", &Form::clearAction);
  scene.textArea(form.story, {.placeholder = "Your story"});
  scene.readingText(form.terms);
  scene.picture(form.picture, UIViewContentMode::ScaleAspectFill);
  scene.progress(form.bar, "How far it is");
  scene.illustration("bicycle", "A bicycle");
  scene.on(scene.button(form.sendButton, "Send"), UIControlEvent::TouchUpInside,
           "sendClicked:", &Form::sendClicked);
  scene.segue(scene.button("nextButton", "Next"), "next");
  scene.unseen(form.spare);
}

class SceneTest : public testing::Test {
 protected:
  ProbeLog log;
  UIStoryboard storyboard{"Form",
                          {scene("Form", formScene), probeScene(log, "Next")},
                          {{"next", "Form", "Next", SegueKind::Push}}};
  HeadlessApplication app{storyboard};
  std::shared_ptr<Form> form = app.shownAs<Form>();
};

TEST_F(SceneTest, ItsViewsStandInReadingOrderUnderTheNamesOfTheirOutlets) {
  std::vector<std::string> names;
  for (const auto& view : form->view()->subviews()) names.push_back(view->name());
  EXPECT_THAT(names, ElementsAre("hello", "nameLabel", "nameField", "story", "terms", "picture",
                                 "bar", "bicycle", "sendButton", "nextButton", "spare"));
  EXPECT_EQ(form->navigationItem().title(), "Form");
}

TEST_F(SceneTest, WordsAndLabelsHaveTheirTexts) {
  EXPECT_EQ(app.text("hello"), "Hello");
  EXPECT_EQ(form->nameLabel->text(), "Name");
  EXPECT_EQ(form->sendButton->title(), "Send");
}

TEST_F(SceneTest, AFieldHasItsTraitsAndIsCalledByItsPlaceholder) {
  EXPECT_EQ(form->nameField->placeholder(), "Your name");
  EXPECT_EQ(form->nameField->accessibilityLabel(), "Your name");
  EXPECT_EQ(form->nameField->keyboardType(), UIKeyboardType::EmailAddress);
  EXPECT_TRUE(form->nameField->secureTextEntry());
  EXPECT_FALSE(form->nameField->showsMessage());
}

TEST_F(SceneTest, ATextAreaIsToWriteInAndAReadingTextIsNot) {
  EXPECT_TRUE(form->story->editable());
  EXPECT_EQ(form->story->placeholder(), "Your story");
  EXPECT_FALSE(form->terms->editable());
}

TEST_F(SceneTest, PicturesAndBarsSayWhatTheyAre) {
  EXPECT_EQ(form->picture->contentMode(), UIViewContentMode::ScaleAspectFill);
  EXPECT_EQ(form->bar->accessibilityLabel(), "How far it is");
  EXPECT_EQ(app.view("bicycle")->accessibilityLabel(), "A bicycle");
}

TEST_F(SceneTest, AnUnseenOutletIsConnectedToAHiddenView) {
  EXPECT_TRUE(form->spare->hidden());
  EXPECT_FALSE(form->nameLabel->hidden());
}

TEST_F(SceneTest, ATapRunsTheActionWithTheControlAsSender) {
  app.tap("sendButton");
  EXPECT_THAT(form->sent, ElementsAre(form->sendButton.get()));
  EXPECT_THAT(form->sendButton->actionsForControlEvent(UIControlEvent::TouchUpInside),
              ElementsAre("sendClicked:"));
}

TEST_F(SceneTest, AControlWithASegueStartsItByItself) {
  app.tap("nextButton");
  EXPECT_THAT(app.stack(), ElementsAre("Form", "Next"));
}

TEST_F(SceneTest, EnteringAnInputRunsItsActionWhileItShowsAMessageAlone) {
  auto& user = *app.application;
  user.beginEditing(form->nameField.get());
  EXPECT_EQ(form->cleared, 0);
  user.edit(form->nameField.get(), "wren");
  user.endEditing(form->nameField.get());
  user.beginEditing(form->nameField.get());
  EXPECT_EQ(form->cleared, 0);
  EXPECT_EQ(form->nameField->text(), "wren");
  user.endEditing(form->nameField.get());
  form->nameField->setText("Error: Please Enter a Name");
  user.beginEditing(form->nameField.get());
  EXPECT_EQ(form->cleared, 1);
  EXPECT_EQ(form->nameField->text(), "");
}

TEST_F(SceneTest, TheSceneDoesNotKeepItsScreenAlive) {
  const auto other = std::static_pointer_cast<Form>(storyboard.instantiateInitialViewController());
  other->view();
  EXPECT_EQ(other.use_count(), 1);
}

class Rows : public UIViewController {
  std::shared_ptr<UIView> makeRootView() override { return std::make_shared<UITableView>(); }
};

TEST(SceneOfATableTest, ASubtitleCellIsMadeByItsIdentifierAndKnowsItsSegue) {
  const UIStoryboard storyboard(
      "Rows",
      {scene<Rows>("Rows", [](Scene<Rows>& scene, Rows&) { scene.subtitleCell("row", "open"); })},
      {});
  const auto screen = storyboard.instantiateInitialViewController();
  const auto table = std::static_pointer_cast<UITableView>(screen->view());
  const auto cell = table->dequeueReusableCellWithIdentifierForIndexPath("row", {});
  EXPECT_EQ(cell->reuseIdentifier(), "row");
  EXPECT_EQ(cell->segueIdentifier(), "open");
  EXPECT_NE(cell->detailTextLabel(), nullptr);
}

TEST(SceneDeathTest, ACellOnAScreenThatIsNoTableIsFatal) {
  ProbeLog log;
  const UIStoryboard storyboard(
      "Plain",
      {probeScene(log, "Plain", [](auto& scene, auto&) { scene.subtitleCell("row", "open"); })},
      {});
  EXPECT_DEATH(storyboard.instantiateInitialViewController()->view(),
               "Leafund stopped: Plain: cells belong to a table screen");
}

}  // namespace
}  // namespace leafund
