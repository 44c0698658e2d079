#include "shell/ShellScenes.h"

#include "shell/NewsFeedVC.h"
#include "shell/TabBarVC.h"

namespace leafund {

void tabBarScene(Scene<TabBarVC>& scene, TabBarVC&) {
  scene
      .tabs({{"browseTab", "Browse", "OtherCampaignsTableViewController"},
             {"fundedTab", "Funded", "FundCampaignVC"},
             {"mineTab", "Mine", "MyProfileVC"},
             {"newsTab", "News", "NewsFeedVC"}})
      .setAccessibilityLabel("Sections");
  // Here and not on the list screen: whatever leaves a list screen has a row as its sender.
  scene.segue(scene.buttonOnTab("mineTab", "newButton", "New"), "newCampaignSegue");
}

void newsFeedScene(Scene<NewsFeedVC>& scene, NewsFeedVC&) {
  scene.title("News");

  scene.illustration("rideStoryPicture", "A bicycle on a path towards the town");
  scene.words("rideStoryTitle", "Five miles, twice a day");
  scene.words("rideStoryText",
              "Tamsin is swapping her car for a bicycle for a whole year, in aid of UNICEF. Every "
              "pledge is another morning on two wheels.");

  scene.illustration("compostStoryPicture", "Fruit peelings on their way into a compost pail");
  scene.words("compostStoryTitle", "The first peel is in");
  scene.words("compostStoryText",
              "Lucan's compost heap is under way. Open his campaign among those you funded to read "
              "how the first day went.");

  scene.illustration("pledgeStoryPicture", "A house with solar panels under the sun");
  scene.words("pledgeStoryTitle", "How a pledge works");
  scene.words("pledgeStoryText",
              "Pick a campaign, choose an amount and confirm. The campaign moves to your Funded "
              "tab at once, and its creator takes it from there.");
}

}  // namespace leafund
