#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/uikit/UIButton.h"
#include "platform/uikit/UIControl.h"
#include "platform/uikit/UIImageView.h"
#include "platform/uikit/UILabel.h"

namespace leafund {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Event = UIControlEvent;

TEST(UIControlTest, ItsHandlersRunInTheOrderAddedWithTheControlAsSender) {
  const auto control = std::make_shared<UIControl>();
  std::vector<std::string> ran;
  std::vector<Sender> senders;
  for (const char* name : {"first:", "second:"}) {
    control->addAction(name, Event::TouchUpInside, [&, name](const Sender& sender) {
      ran.emplace_back(name);
      senders.push_back(sender);
    });
  }
  control->sendActionsForControlEvents(Event::TouchUpInside);
  EXPECT_THAT(ran, ElementsAre("first:", "second:"));
  EXPECT_THAT(senders, ElementsAre(control, control));
}

TEST(UIControlTest, AnEventRunsItsOwnHandlersAlone) {
  const auto control = std::make_shared<UIControl>();
  int touched = 0;
  int entered = 0;
  control->addAction("touched:", Event::TouchUpInside, [&](const Sender&) { ++touched; });
  control->addAction("entered:", Event::EditingDidBegin, [&](const Sender&) { ++entered; });
  control->sendActionsForControlEvents(Event::EditingDidBegin);
  EXPECT_EQ(touched, 0);
  EXPECT_EQ(entered, 1);
}

TEST(UIControlTest, AControlWithoutHandlersTakesTheEventInSilence) {
  const auto control = std::make_shared<UIControl>();
  control->sendActionsForControlEvents(Event::TouchUpInside);
  EXPECT_THAT(control->actionsForControlEvent(Event::TouchUpInside), IsEmpty());
}

TEST(UIControlTest, TheLabelsOfItsWiringAreListedByEvent) {
  UIControl control;
  control.addAction("buy:", Event::TouchUpInside, [](const Sender&) {});
  control.addAction("enter:", Event::EditingDidBegin, [](const Sender&) {});
  control.addAction("log:", Event::TouchUpInside, [](const Sender&) {});
  EXPECT_THAT(control.actionsForControlEvent(Event::TouchUpInside), ElementsAre("buy:", "log:"));
  EXPECT_THAT(control.actionsForControlEvent(Event::EditingDidBegin), ElementsAre("enter:"));
}

TEST(UIControlTest, AnActionMayTakeTheControlAway) {
  auto control = std::make_shared<UIControl>();
  const std::weak_ptr<UIResponder> gone = control;
  bool second = false;
  control->addAction("remove:", Event::TouchUpInside, [&](const Sender&) { control.reset(); });
  control->addAction("after:", Event::TouchUpInside,
                     [&](const Sender& sender) { second = sender == gone.lock(); });
  UIControl& tapped = *control;
  tapped.sendActionsForControlEvents(Event::TouchUpInside);
  EXPECT_TRUE(second);
  EXPECT_TRUE(gone.expired());
}

TEST(UIControlTest, AnActionAddedMeanwhileWaitsForTheNextEvent) {
  const auto control = std::make_shared<UIControl>();
  int late = 0;
  control->addAction("add:", Event::TouchUpInside, [&](const Sender&) {
    control->addAction("late:", Event::TouchUpInside, [&](const Sender&) { ++late; });
  });
  control->sendActionsForControlEvents(Event::TouchUpInside);
  EXPECT_EQ(late, 0);
  control->sendActionsForControlEvents(Event::TouchUpInside);
  EXPECT_EQ(late, 1);
}

TEST(UIButtonTest, AButtonHasItsTitle) { EXPECT_EQ(UIButton("Yes").title(), "Yes"); }

TEST(UILabelTest, ALabelIsEmptyAtFirstAndShowsAnyText) {
  UILabel label;
  EXPECT_EQ(label.text(), "");
  label.setText("<b>Grüße</b>\n");
  EXPECT_EQ(label.text(), "<b>Grüße</b>\n");
}

TEST(UIImageViewTest, AnImageViewIsEmptyAtFirstTakesAPictureAndIsEmptiedByNone) {
  UIImageView view;
  EXPECT_EQ(view.image(), nullptr);
  EXPECT_EQ(view.contentMode(), UIViewContentMode::ScaleToFill);
  const auto image = UIImage::withDrawing({});
  view.setImage(image);
  EXPECT_EQ(view.image(), image);
  view.setImage(nullptr);
  EXPECT_EQ(view.image(), nullptr);
}

}  // namespace
}  // namespace leafund
