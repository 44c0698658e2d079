#pragma once

#include "platform/uikit/Scene.h"

namespace leafund {

class ConfirmPageVC;
class FundCampaignVC;
class LandingPageVC;
class MyProfileVC;
class NewCampaignVC;
class OneCampaignViewController;
class OtherCampaignsTableViewController;
class SignUpVC;
class ThankYouVC;
class UpdatePageVC;

// What each scene holds, one file a scene. Tables name them; nobody else calls them.
void landingScene(Scene<LandingPageVC>& scene, LandingPageVC& screen);
void signUpScene(Scene<SignUpVC>& scene, SignUpVC& screen);
void browseScene(Scene<OtherCampaignsTableViewController>& scene,
                 OtherCampaignsTableViewController& screen);
void fundedScene(Scene<FundCampaignVC>& scene, FundCampaignVC& screen);
void mineScene(Scene<MyProfileVC>& scene, MyProfileVC& screen);
void campaignScene(Scene<OneCampaignViewController>& scene, OneCampaignViewController& screen);
void confirmScene(Scene<ConfirmPageVC>& scene, ConfirmPageVC& screen);
void thankYouScene(Scene<ThankYouVC>& scene, ThankYouVC& screen);
void updateScene(Scene<UpdatePageVC>& scene, UpdatePageVC& screen);
void newCampaignScene(Scene<NewCampaignVC>& scene, NewCampaignVC& screen);

}  // namespace leafund
