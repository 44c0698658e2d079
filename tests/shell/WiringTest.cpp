#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/Catalogue.h"
#include "platform/headless/HeadlessHost.h"
#include "platform/uikit/UIControl.h"
#include "platform/uikit/UITextInput.h"
#include "screens/campaign/ConfirmPageVC.h"
#include "screens/campaign/OneCampaignViewController.h"
#include "shell/Storyboard.h"

namespace leafund {
namespace {

using testing::UnorderedElementsAre;

void collect(const UIView& root, std::vector<std::string>& wires) {
  for (const auto& view : root.subviews()) {
    if (const auto* control = dynamic_cast<const UIControl*>(view.get())) {
      for (const auto& action : control->actionsForControlEvent(UIControlEvent::TouchUpInside)) {
        if (!action.empty()) wires.push_back(view->name() + " tapped " + action);
      }
      for (const auto& action : control->actionsForControlEvent(UIControlEvent::EditingDidBegin)) {
        wires.push_back(view->name() + " entered " + action);
      }
    }
    collect(*view, wires);
  }
}

// Every action and segue of the scene's controls, for a screen ready to load.
std::vector<std::string> wiresOf(const std::string& sceneName) {
  const auto screen = mainStoryboard().instantiateViewControllerWithIdentifier(sceneName);
  if (const auto detail = std::dynamic_pointer_cast<OneCampaignViewController>(screen)) {
    detail->campaign = otherCampaigns()[0];
  }
  if (const auto confirm = std::dynamic_pointer_cast<ConfirmPageVC>(screen)) {
    confirm->campaignNum = 0;
  }
  std::vector<std::string> wires;
  collect(*screen->view(), wires);
  return wires;
}

TEST(WiringTest, EveryActionOfAScreenIsRunBySomeControl) {
  HeadlessHost host;
  EXPECT_THAT(wiresOf("LandingPageVC"),
              UnorderedElementsAre(
                  "userEmail entered fixThingAction:", "password entered fixOtherThingAction:",
                  "signInButton tapped signInClicked:", "signUpButton tapped signUpClicked:"));
  EXPECT_THAT(wiresOf("SignUpVC"), UnorderedElementsAre("signUpButton tapped signUpClicked:"));
  EXPECT_THAT(wiresOf("ThankYouVC"), UnorderedElementsAre("homeButton tapped homeButtonClicked:"));
  EXPECT_THAT(wiresOf("NewCampaignVC"),
              UnorderedElementsAre("createButton tapped createButtonClicked:"));
  EXPECT_THAT(wiresOf("OneCampaignViewController"),
              UnorderedElementsAre("FundButton tapped ButtonClicked:",
                                   "campaignUpdates tapped campaignUpdatesClicked:"));
  EXPECT_THAT(wiresOf("ConfirmPageVC"),
              UnorderedElementsAre("yesButton tapped yesClicked:", "noButton tapped noClicked:"));
  EXPECT_THAT(wiresOf("TabBarVC"), UnorderedElementsAre("newButton tapped newCampaignSegue"));
}

TEST(WiringTest, EveryOutletOfEveryScreenIsConnectedByItsScene) {
  HeadlessHost host;
  for (const auto& scene : mainStoryboard().scenes()) {
    const auto screen = mainStoryboard().draft(scene.name);
    EXPECT_THAT(screen->unconnectedOutlets(), testing::IsEmpty()) << scene.name;
  }
}

std::vector<std::string> fieldsWithADelegate(const std::string& sceneName) {
  std::vector<std::string> names;
  const auto screen = mainStoryboard().instantiateViewControllerWithIdentifier(sceneName);
  for (const auto& view : screen->view()->subviews()) {
    const auto* field = dynamic_cast<const UITextField*>(view.get());
    if (field != nullptr && field->delegate() != nullptr) names.push_back(field->name());
  }
  return names;
}

TEST(WiringTest, OnlyTheFormsFourFieldsHaveADelegate) {
  EXPECT_THAT(
      fieldsWithADelegate("NewCampaignVC"),
      UnorderedElementsAre("nameOfCreator", "nameOfCampaign", "desiredFunding", "imageURL"));
  EXPECT_THAT(fieldsWithADelegate("SignUpVC"), testing::IsEmpty());
}

}  // namespace
}  // namespace leafund
