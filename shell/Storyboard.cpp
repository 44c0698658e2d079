#include "shell/Storyboard.h"

#include "interface/scenes/Scenes.h"
#include "screens/accounts/LandingPageVC.h"
#include "screens/accounts/SignUpVC.h"
#include "screens/campaign/ConfirmPageVC.h"
#include "screens/campaign/OneCampaignViewController.h"
#include "screens/campaign/ThankYouVC.h"
#include "screens/campaign/UpdatePageVC.h"
#include "screens/create/NewCampaignVC.h"
#include "screens/lists/FundCampaignVC.h"
#include "screens/lists/MyProfileVC.h"
#include "screens/lists/OtherCampaignsTableViewController.h"
#include "shell/NewsFeedVC.h"
#include "shell/ShellScenes.h"
#include "shell/TabBarVC.h"

namespace leafund {

namespace {

std::vector<SceneDescription> scenes() {
  return {
      scene("LandingPageVC", landingScene), scene("SignUpVC", signUpScene),
      scene("TabBarVC", tabBarScene),       scene("OtherCampaignsTableViewController", browseScene),
      scene("FundCampaignVC", fundedScene), scene("MyProfileVC", mineScene),
      scene("NewsFeedVC", newsFeedScene),   scene("OneCampaignViewController", campaignScene),
      scene("ConfirmPageVC", confirmScene), scene("ThankYouVC", thankYouScene),
      scene("UpdatePageVC", updateScene),   scene("NewCampaignVC", newCampaignScene)};
}

// The navigation map: one row for each transition.
std::vector<SegueDescription> segues() {
  using enum SegueKind;
  return {
      {"signInSegue", "LandingPageVC", "TabBarVC", Push},
      {"signUpSegue", "LandingPageVC", "SignUpVC", Push},
      {"signUpSecondSegue", "SignUpVC", "TabBarVC", Push},
      {"newCampaignSegue", "TabBarVC", "NewCampaignVC", Push},
      {"campaignSegue", "OtherCampaignsTableViewController", "OneCampaignViewController", Push},
      {"campaignSegue", "FundCampaignVC", "OneCampaignViewController", Push},
      {"campaignSegue", "MyProfileVC", "OneCampaignViewController", Push},
      {"updatesSegue", "OneCampaignViewController", "UpdatePageVC", Push},
      {"campaignFundedSegue", "OneCampaignViewController", "ConfirmPageVC", Push},
      {"yesSegue", "ConfirmPageVC", "ThankYouVC", Push},
      {"noSegue", "ConfirmPageVC", "OneCampaignViewController", UnwindTo},
      {"campaignCreatedSegue", "NewCampaignVC", "ThankYouVC", Push},
      {"homeSegue", "ThankYouVC", "TabBarVC", UnwindTo},
  };
}

}  // namespace

const UIStoryboard& mainStoryboard() {
  static const auto& storyboard = *new UIStoryboard("LandingPageVC", scenes(), segues());
  return storyboard;
}

}  // namespace leafund
