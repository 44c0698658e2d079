#include <gtest/gtest.h>

#include "platform/uikit/Scene.h"
#include "tests/window/WindowApplication.h"

namespace leafund {
namespace {

// A screen that is shown by the page of the thanks, which lists a label and a button.
class ThanksScreen : public UIViewController {};
using Description = Scene<ThanksScreen>;

void open(void (*describe)(Description&, ThanksScreen&)) {
  const UIStoryboard storyboard("ThankYouVC", {scene("ThankYouVC", describe)}, {});
  const WindowApplication app(storyboard);
}

void complete(Description& scene, ThanksScreen&) {
  scene.words("ThankYouLabel", "Thanks");  // as a property its name begins with a small letter
  scene.button("homeButton", "Home");
}
void withoutItsButton(Description& scene, ThanksScreen&) { scene.words("thankYouLabel", "Thanks"); }
void withOneTooMany(Description& scene, ThanksScreen& screen) {
  complete(scene, screen);
  scene.words("motto", "Small pledges");
}
void withALabelForItsButton(Description& scene, ThanksScreen&) {
  scene.words("thankYouLabel", "Thanks");
  scene.words("homeButton", "Home");
}

TEST(PageHeadTest, APageIsMadeWithTheViewsItLists) { open(complete); }

class PageHeadDeathTest : public testing::Test {
 protected:
  PageHeadDeathTest() { testing::FLAGS_gtest_death_test_style = "threadsafe"; }
};

TEST_F(PageHeadDeathTest, AViewThatTheSceneDoesNotHaveIsFatal) {
  EXPECT_DEATH(open(withoutItsButton),
               "Leafund stopped: ThankYouVC.*Required property homeButton was not initialized");
}

TEST_F(PageHeadDeathTest, AViewThatThePageDoesNotListIsFatal) {
  EXPECT_DEATH(open(withOneTooMany), "Leafund stopped: ThankYouVC.*motto");
}

TEST_F(PageHeadDeathTest, AViewOfAnotherKindIsFatal) {
  EXPECT_DEATH(open(withALabelForItsButton), "Leafund stopped: ThankYouVC.*homeButton");
}

}  // namespace
}  // namespace leafund
