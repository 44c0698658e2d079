#include "interface/scenes/Scenes.h"
#include "screens/lists/FundCampaignVC.h"
#include "screens/lists/MyProfileVC.h"
#include "screens/lists/OtherCampaignsTableViewController.h"

namespace leafund {

void browseScene(Scene<OtherCampaignsTableViewController>& scene,
                 OtherCampaignsTableViewController& screen) {
  scene.title("Browse");
  scene.subtitleCell("abc", "campaignSegue");
  screen.tableView()->setAccessibilityLabel("Campaigns");
  screen.tableView()->setEmptyWords(
      {"No open campaigns", "You have funded every one. Start your own under Mine."});
}

void fundedScene(Scene<FundCampaignVC>& scene, FundCampaignVC& screen) {
  scene.title("Funded by you");
  scene.subtitleCell("Funded", "campaignSegue");
  screen.tableView()->setAccessibilityLabel("Campaigns");
  screen.tableView()->setEmptyWords(
      {"No pledges yet", "Pick a campaign under Browse and fund it. You find it here."});
  screen.fundedTable.connect(screen.tableView());
}

void mineScene(Scene<MyProfileVC>& scene, MyProfileVC& screen) {
  scene.title("Your campaigns");
  scene.subtitleCell("MyCampaigns", "campaignSegue");
  screen.tableView()->setAccessibilityLabel("Campaigns");
  screen.tableView()->setEmptyWords(
      {"No campaigns yet", "Tap New and tell others what you want to do."});
  screen.fundedTable.connect(screen.tableView());
}

}  // namespace leafund
