// Every test counts on a fresh process: the catalogue is created once and never reset.
#include <gtest/gtest.h>

#include <csignal>
#include <string>
#include <tuple>
#include <vector>

#include "model/Catalogue.h"
#include "model/PictureHost.h"
#include "tests/support/LastWords.h"

namespace leafund {
namespace {

using Update = std::tuple<std::string, std::string, std::string>;

const Update noUpdate{"", "", ""};

Update updateOf(const CampaignClass& campaign) {
  return {campaign.updateOneDate(), campaign.updateOneText(), campaign.updateOnePhoto()};
}

std::vector<Update> allUpdates() {
  std::vector<Update> updates;
  for (const CampaignList* list :
       {&campaignsIFunded(), &otherCampaigns(), &myUnfundedCampaigns()}) {
    for (const auto& campaign : *list) updates.push_back(updateOf(*campaign));
  }
  return updates;
}

TEST(SeedUpdatesTest, AllTwelveCampaignsStartWithoutAnUpdate) {
  EXPECT_EQ(allUpdates(), std::vector<Update>(12, noUpdate));
}

TEST(SeedUpdatesTest, TheCompostReportsOnTheFirstOfDecember) {
  writeSeedUpdates();

  const CampaignClass& compost = *campaignsIFunded()[0];
  EXPECT_EQ(compost.title(), "Compost for Christ!");
  EXPECT_EQ(compost.updateOneDate(), "December 1");
  EXPECT_EQ(compost.updateOneText().size(), 312U);
  EXPECT_EQ(compost.updateOnePhoto(), pictureAddress("update-compost.jpg"));
}

TEST(SeedUpdatesTest, TheLightsReportOnTheThirdAndPointAtTheInfographic) {
  writeSeedUpdates();

  const CampaignClass& lights = *campaignsIFunded()[1];
  EXPECT_EQ(lights.title(), "Lights Out!");
  EXPECT_EQ(lights.updateOneDate(), "December 3");
  EXPECT_EQ(lights.updateOneText().size(), 313U);
  EXPECT_NE(lights.updateOneText().find("the infographic above"), std::string::npos);
  EXPECT_EQ(lights.updateOnePhoto(), pictureAddress("update-lights-out.jpg"));
}

TEST(SeedUpdatesTest, TheOtherTenCampaignsStayWithoutAnUpdate) {
  writeSeedUpdates();

  const std::vector<Update> updates = allUpdates();
  EXPECT_EQ(std::vector<Update>(updates.begin() + 2, updates.end()),
            std::vector<Update>(10, noUpdate));
}

TEST(SeedUpdatesTest, WritingThemTwiceLeavesTheSameValues) {
  writeSeedUpdates();
  const std::vector<Update> once = allUpdates();

  writeSeedUpdates();

  EXPECT_EQ(allUpdates(), once);
}

TEST(SeedUpdatesTest, WritingThemAgainRestoresAnUpdateThatWasReplaced) {
  writeSeedUpdates();
  const std::vector<Update> once = allUpdates();
  campaignsIFunded()[0]->setUpdateOneText("The worms have moved out.");

  writeSeedUpdates();

  EXPECT_EQ(allUpdates(), once);
}

TEST(SeedUpdatesTest, AfterAPledgeTheyLandOnWhicheverCampaignsStandInFront) {
  const auto solar = otherCampaigns()[2];
  otherCampaigns().erase(otherCampaigns().begin() + 2);
  campaignsIFunded().insert(campaignsIFunded().begin(), solar);

  writeSeedUpdates();

  EXPECT_EQ(solar->updateOneDate(), "December 1");
  EXPECT_EQ(campaignsIFunded()[1]->title(), "Compost for Christ!");
  EXPECT_EQ(campaignsIFunded()[1]->updateOneDate(), "December 3");
  EXPECT_EQ(campaignsIFunded()[2]->title(), "Lights Out!");
  EXPECT_EQ(updateOf(*campaignsIFunded()[2]), noUpdate);
}

TEST(SeedUpdatesDeathTest, APositionTheListDoesNotHaveStopsTheProcessWithTheLineOfEveryFatalError) {
  campaignsIFunded().resize(1);
  EXPECT_EXIT(writeSeedUpdates(), testing::KilledBySignal(SIGABRT),
              "^Leafund stopped: writeSeedUpdates: position 1 is outside a list of 1\n$");
  campaignsIFunded().clear();
  EXPECT_DEATH(writeSeedUpdates(), "writeSeedUpdates: position 0 is outside a list of 0");
}

TEST(SeedUpdatesDeathTest, TheFirstUpdateIsWrittenBeforeTheSecondStops) {
  campaignsIFunded().resize(1);
  const auto write = [] {
    sayWhenStopped([] { return campaignsIFunded()[0]->updateOneDate(); });
    writeSeedUpdates();
  };
  EXPECT_DEATH(write(), "is outside a list of 1\nDecember 1");
}

}  // namespace
}  // namespace leafund
