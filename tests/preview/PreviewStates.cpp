#include "tests/preview/PreviewStates.h"

#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UITabContainer.h"
#include "screens/accounts/LandingPageVC.h"
#include "screens/accounts/SignUpVC.h"
#include "screens/campaign/ConfirmPageVC.h"
#include "screens/campaign/OneCampaignViewController.h"
#include "screens/campaign/ThankYouVC.h"
#include "screens/campaign/UpdatePageVC.h"
#include "screens/create/NewCampaignVC.h"
#include "shell/Storyboard.h"
#include "tests/preview/PreviewRecords.h"
#include "tests/support/ViewNamed.h"

namespace leafund {

namespace {

template <class Screen>
using Prepare = void (*)(Screen& screen);
template <class Screen>
using Act = void (*)(UIApplication& application, Screen& screen);

template <class Screen = UIViewController>
PreviewState state(std::string scene, std::string name, Prepare<Screen> prepare = nullptr,
                   Act<Screen> act = nullptr) {
  PreviewState made{std::move(scene), std::move(name), [](auto&) {}, [](auto&, auto&) {}, {}};
  if (prepare != nullptr) {
    made.prepare = [prepare](UIViewController& screen) { prepare(dynamic_cast<Screen&>(screen)); };
  }
  if (act != nullptr) {
    made.act = [act](UIApplication& application, UIViewController& screen) {
      act(application, dynamic_cast<Screen&>(screen));
    };
  }
  return made;
}

std::vector<PreviewState> accountStates() {
  return {
      state("LandingPageVC", "empty"),
      state<LandingPageVC>("LandingPageVC", "filled", nullptr,
                           [](UIApplication& application, LandingPageVC& screen) {
                             application.edit(screen.userEmail.get(), "robin@example.org");
                             application.edit(screen.password.get(), "green changes");
                           }),
      state<LandingPageVC>("LandingPageVC", "refused", nullptr,
                           [](UIApplication& application, LandingPageVC& screen) {
                             application.tap(screen.signInButton.get());
                           }),
      state("SignUpVC", "empty"),
      state<SignUpVC>("SignUpVC", "filled", nullptr,
                      [](UIApplication& application, SignUpVC& screen) {
                        application.edit(screen.nameField.get(), "Robin");
                        application.edit(screen.passwordField.get(), "green changes");
                        application.edit(screen.passwordConfirmField.get(), "green changes");
                      }),
      state<SignUpVC>("SignUpVC", "refused", nullptr,
                      [](UIApplication& application, SignUpVC& screen) {
                        application.tap(screen.signUpButton.get());
                      }),
  };
}

std::vector<PreviewState> onTab(const std::string& tab, std::vector<PreviewState> states) {
  for (auto& each : states) each.tab = tab;
  return states;
}

template <CampaignList& list()>
std::vector<PreviewState> listStates(const std::string& scene) {
  return {state(scene, "filled"),
          state(
              scene, "empty", +[](UIViewController&) { list().clear(); }),
          state(
              scene, "long", +[](UIViewController&) { list().assign(1, longCampaign()); }),
          state(scene, "many", +[](UIViewController&) { list() = manyCampaigns(); })};
}

std::vector<PreviewState> tabStates() {
  std::vector<PreviewState> all{state("TabBarVC", "filled")};
  for (const auto& some :
       {onTab("browseTab", listStates<otherCampaigns>("OtherCampaignsTableViewController")),
        onTab("fundedTab", listStates<campaignsIFunded>("FundCampaignVC")),
        onTab("mineTab", listStates<myUnfundedCampaigns>("MyProfileVC")),
        onTab("newsTab", {state("NewsFeedVC", "filled")})}) {
    all.insert(all.end(), some.begin(), some.end());
  }
  return all;
}

// The list stays as it is: the page is also made ahead, while another state shows the list.
void openFirst(OneCampaignViewController& screen) {
  screen.campaignSendingYou = "otherCampaigns";
  screen.campaignNum = 0;
}

void open(OneCampaignViewController& screen, std::shared_ptr<CampaignClass> campaign) {
  otherCampaigns().assign(1, std::move(campaign));
  openFirst(screen);
}

std::vector<PreviewState> campaignStates() {
  const std::string scene = "OneCampaignViewController";
  using Screen = OneCampaignViewController;
  return {state<Screen>(scene, "filled", openFirst),
          state<Screen>(scene, "refused", openFirst,
                        [](UIApplication& application, Screen& screen) {
                          application.edit(screen.dollarAmountField.get(), "1000");
                          application.tap(screen.FundButton.get());
                        }),
          state<Screen>(scene, "funded",
                        [](Screen& screen) {
                          screen.campaignSendingYou = "campaignsIFunded";
                          screen.campaignNum = 0;
                          auto& campaign = *campaignsIFunded().front();
                          campaign.setCurrFunding(campaign.totalFunding());
                        }),
          state<Screen>(scene, "empty", [](Screen& screen) { open(screen, emptyCampaign()); }),
          state<Screen>(scene, "long", [](Screen& screen) { open(screen, longCampaign()); })};
}

void openUpdate(UpdatePageVC& screen, std::ptrdiff_t position) {
  writeSeedUpdates();
  screen.campaignSendingYou = "campaignsIFunded";
  screen.campaignNum = position;
}

std::vector<PreviewState> afterwards() {
  return {
      state<ConfirmPageVC>("ConfirmPageVC", "filled",
                           [](ConfirmPageVC& screen) {
                             screen.campaign = otherCampaigns().front();
                             screen.campaignNum = 0;
                             screen.dollarsDonated = 25.0F;
                           }),
      state<ThankYouVC>("ThankYouVC", "filled",
                        [](ThankYouVC& screen) { screen.pageFrom = "ConfirmPageVC"; }),
      state<ThankYouVC>("ThankYouVC", "created",
                        [](ThankYouVC& screen) { screen.pageFrom = "NewCampaignVC"; }),
      state<UpdatePageVC>("UpdatePageVC", "filled",
                          [](UpdatePageVC& screen) { openUpdate(screen, 0); }),
      state<UpdatePageVC>("UpdatePageVC", "empty",
                          [](UpdatePageVC& screen) {
                            campaignsIFunded().push_back(emptyCampaign());
                            openUpdate(screen, std::ssize(campaignsIFunded()) - 1);
                          }),
      state<UpdatePageVC>("UpdatePageVC", "long",
                          [](UpdatePageVC& screen) {
                            campaignsIFunded().push_back(longCampaign());
                            openUpdate(screen, std::ssize(campaignsIFunded()) - 1);
                          }),
  };
}

std::vector<PreviewState> creationStates() {
  return {
      state("NewCampaignVC", "empty"),
      state<NewCampaignVC>(
          "NewCampaignVC", "filled", nullptr,
          [](UIApplication& application, NewCampaignVC& screen) {
            application.edit(screen.nameOfCreator.get(), "Robin");
            application.edit(screen.nameOfCampaign.get(), "Lights out at ten");
            application.edit(screen.shortDescription.get(), "An hour earlier, every evening.");
            application.edit(screen.fullDescription.get(), longWords());
            application.edit(screen.desiredFunding.get(), "250");
            application.edit(screen.imageURL.get(), "http://pictures.example.org/lights.jpg");
          }),
      state<NewCampaignVC>("NewCampaignVC", "refused", nullptr,
                           [](UIApplication& application, NewCampaignVC& screen) {
                             application.edit(screen.desiredFunding.get(), "much");
                             application.tap(screen.createButton.get());
                           }),
  };
}

std::vector<PreviewState> allStates() {
  std::vector<PreviewState> all;
  for (const auto& some :
       {accountStates(), tabStates(), campaignStates(), afterwards(), creationStates()}) {
    all.insert(all.end(), some.begin(), some.end());
  }
  return all;
}

}  // namespace

const std::vector<PreviewState>& previewStates() {
  static const auto& states = *new std::vector(allStates());
  return states;
}

const PreviewState* previewState(const std::string& scene, const std::string& name) {
  for (const auto& state : previewStates()) {
    if (state.scene == scene && (name.empty() || state.name == name)) return &state;
  }
  return nullptr;
}

UIStoryboard previewStoryboard(const PreviewState& state) {
  auto scenes = mainStoryboard().scenes();
  for (auto& scene : scenes) {
    const auto* own = scene.name == state.scene ? &state : previewState(scene.name, "");
    if (own == nullptr) continue;
    scene.make = [make = scene.make, prepare = own->prepare] {
      auto screen = make();
      prepare(*screen);
      return screen;
    };
  }
  auto segues = mainStoryboard().segues();
  for (auto& segue : segues) segue.kind = SegueKind::Push;
  const std::string first = state.tab.empty() ? state.scene : "TabBarVC";
  return {first, std::move(scenes), std::move(segues)};
}

void actPreview(UIApplication& application, const PreviewState& state) {
  if (!state.tab.empty()) application.tap(viewNamed(*application.navigation(), state.tab));
  state.act(application, *shownScreen(*application.navigation()));
}

}  // namespace leafund
