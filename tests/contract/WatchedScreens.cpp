#include "tests/contract/WatchedScreens.h"

#include <map>

#include "screens/accounts/LandingPageVC.h"
#include "screens/accounts/SignUpVC.h"
#include "screens/campaign/ConfirmPageVC.h"
#include "screens/campaign/OneCampaignViewController.h"
#include "screens/campaign/ThankYouVC.h"
#include "screens/campaign/UpdatePageVC.h"
#include "screens/create/NewCampaignVC.h"
#include "screens/lists/FundCampaignVC.h"
#include "screens/lists/MyProfileVC.h"
#include "shell/NewsFeedVC.h"
#include "shell/Storyboard.h"
#include "shell/TabBarVC.h"

namespace leafund {

namespace {

using Make = std::function<std::shared_ptr<UIViewController>()>;

template <class Screen>
Make watched(ContractLog& log) {
  return [&log] { return std::make_shared<Watched<Screen>>(log); };
}

std::map<std::string, Make> watchedScreens(ContractLog& log) {
  return {{"LandingPageVC", watched<LandingPageVC>(log)},
          {"SignUpVC", watched<SignUpVC>(log)},
          {"TabBarVC", watched<TabBarVC>(log)},
          {"OtherCampaignsTableViewController",
           [&log] { return std::make_shared<WatchedBrowse>(log); }},
          {"FundCampaignVC", watched<FundCampaignVC>(log)},
          {"MyProfileVC", watched<MyProfileVC>(log)},
          {"NewsFeedVC", watched<NewsFeedVC>(log)},
          {"OneCampaignViewController", watched<OneCampaignViewController>(log)},
          {"ConfirmPageVC", watched<ConfirmPageVC>(log)},
          {"ThankYouVC", watched<ThankYouVC>(log)},
          {"UpdatePageVC", watched<UpdatePageVC>(log)},
          {"NewCampaignVC", watched<NewCampaignVC>(log)}};
}

std::string line(const char* what, NSIndexPath path) {
  return std::string(what).append(" ").append(std::to_string(path.row));
}

}  // namespace

std::ptrdiff_t WatchedBrowse::tableViewNumberOfRowsInSection(UITableView& table,
                                                             std::ptrdiff_t section) {
  ++countQuestions;
  return Watched::tableViewNumberOfRowsInSection(table, section);
}

std::shared_ptr<UITableViewCell> WatchedBrowse::tableViewCellForRowAtIndexPath(UITableView& table,
                                                                               NSIndexPath path) {
  told.push_back(line("cell", path));
  return Watched::tableViewCellForRowAtIndexPath(table, path);
}

void WatchedBrowse::tableViewWillDisplayCellForRowAtIndexPath(
    UITableView& table, const std::shared_ptr<UITableViewCell>& cell, NSIndexPath path) {
  told.push_back(line("display", path));
  Watched::tableViewWillDisplayCellForRowAtIndexPath(table, cell, path);
}

UIStoryboard watchedStoryboard(ContractLog& log) {
  auto scenes = mainStoryboard().scenes();
  const auto screens = watchedScreens(log);
  for (auto& scene : scenes) {
    if (const auto own = screens.find(scene.name); own != screens.end()) scene.make = own->second;
  }
  return UIStoryboard("LandingPageVC", std::move(scenes), mainStoryboard().segues());
}

}  // namespace leafund
