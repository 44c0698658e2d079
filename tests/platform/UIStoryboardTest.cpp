#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/uikit/UIStoryboard.h"
#include "tests/support/HeadlessApplication.h"
#include "tests/support/ProbeScreen.h"

namespace leafund {
namespace {

using testing::ElementsAre;
using enum SegueKind;

class UIStoryboardTest : public testing::Test {
 protected:
  ProbeLog log;
  UIStoryboard storyboard{"First",
                          {probeScene(log, "First"), probeScene(log, "Second")},
                          {{"next", "First", "Second", Push},
                           {"next", "Second", "First", Push},
                           {"back", "Second", "First", UnwindTo}}};
};

TEST_F(UIStoryboardTest, MakesTheInitialScreenAndAnyOtherByNameUnloadedEachTimeAnew) {
  EXPECT_EQ(storyboard.instantiateInitialViewController()->className(), "First");
  const auto second = storyboard.instantiateViewControllerWithIdentifier("Second");
  EXPECT_EQ(second->className(), "Second");
  EXPECT_NE(storyboard.instantiateViewControllerWithIdentifier("Second"), second);
  EXPECT_EQ(second->viewIfLoaded(), nullptr);
}

TEST_F(UIStoryboardTest, ASegueIsFoundByItsSourceAndItsIdentifier) {
  EXPECT_EQ(storyboard.segue("First", "next").destination, "Second");
  EXPECT_EQ(storyboard.segue("Second", "next").destination, "First");
  EXPECT_EQ(storyboard.segue("Second", "back").kind, UnwindTo);
}

TEST_F(UIStoryboardTest, ThePreparingScreenMeetsTheSegueWithASenderAndAnUnloadedDestination) {
  HeadlessApplication app(storyboard);
  const auto first = app.shownAs<ProbeScreen>();
  const auto sender = std::make_shared<UIView>();
  int prepared = 0;
  first->onPrepare = [&](UIStoryboardSegue& segue, const Sender& from) {
    ++prepared;
    EXPECT_EQ(segue.identifier(), "next");
    EXPECT_EQ(segue.destinationViewController()->className(), "Second");
    EXPECT_EQ(segue.destinationViewController()->viewIfLoaded(), nullptr);
    EXPECT_EQ(from, sender);
  };
  app.application->turn([&] { first->performSegueWithIdentifierSender("next", sender); });
  EXPECT_EQ(prepared, 1);
}

TEST_F(UIStoryboardTest, AnUnwindIsPreparedWithTheScreenThatStandsBelow) {
  HeadlessApplication app(storyboard);
  const auto first = app.shown();
  app.application->turn([&] { first->performSegueWithIdentifierSender("next", nullptr); });
  const auto second = app.shownAs<ProbeScreen>();
  std::shared_ptr<UIViewController> destination;
  second->onPrepare = [&](UIStoryboardSegue& segue, const Sender&) {
    destination = segue.destinationViewController();
    EXPECT_THAT(app.stack(), ElementsAre("First", "Second"));
  };
  app.application->turn([&] { second->performSegueWithIdentifierSender("back", nullptr); });
  EXPECT_EQ(destination, first);
  EXPECT_THAT(app.stack(), ElementsAre("First"));
}

using UIStoryboardDeathTest = UIStoryboardTest;

TEST_F(UIStoryboardDeathTest, AnUnknownSceneIsFatal) {
  EXPECT_DEATH(storyboard.instantiateViewControllerWithIdentifier("Third"),
               "Leafund stopped: storyboard: there is no scene named Third");
  const UIStoryboard empty("Nowhere", {}, {});
  EXPECT_DEATH(empty.instantiateInitialViewController(),
               "Leafund stopped: storyboard: there is no scene named Nowhere");
}

TEST_F(UIStoryboardDeathTest, AnIdentifierThatDoesNotLeaveTheScreenIsFatal) {
  EXPECT_DEATH(storyboard.segue("First", "back"),
               "Leafund stopped: First: no segue named back leaves this screen");
  HeadlessApplication app(storyboard);
  EXPECT_DEATH(app.shown()->performSegueWithIdentifierSender("unknown", nullptr),
               "Leafund stopped: First: no segue named unknown leaves this screen");
}

TEST_F(UIStoryboardDeathTest, ASegueFromAScreenOnNoStackIsFatal) {
  const auto screen = storyboard.instantiateInitialViewController();
  EXPECT_DEATH(screen->performSegueWithIdentifierSender("next", nullptr),
               "Leafund stopped: First: performs a segue outside a navigation stack");
}

}  // namespace
}  // namespace leafund
