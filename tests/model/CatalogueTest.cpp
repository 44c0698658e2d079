// Every test counts on a fresh process: the catalogue is created once and never reset.
#include <gtest/gtest.h>

#include <array>
#include <barrier>
#include <cstddef>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "model/Catalogue.h"

namespace leafund {
namespace {

std::vector<std::string> titles(const CampaignList& list) {
  std::vector<std::string> result;
  for (const auto& campaign : list) result.push_back(campaign->title());
  return result;
}

using Titles = std::vector<std::string>;

// What the confirmation does to the lists.
void moveToFunded(std::ptrdiff_t position) {
  const auto campaign = otherCampaigns().at(static_cast<std::size_t>(position));
  otherCampaigns().erase(otherCampaigns().begin() + position);
  campaignsIFunded().insert(campaignsIFunded().begin(), campaign);
}

TEST(CatalogueTest, TheUserIsQuillonUntilSomeoneSignsUp) {
  EXPECT_EQ(currentUserName(), "Quillon");
}

TEST(CatalogueTest, TheListsStartWithSevenThreeAndTwoCampaignsInOrder) {
  EXPECT_EQ(titles(otherCampaigns()),
            (Titles{"Vegetarian for PETA", "Biking to Work!", "Solar Panel House",
                    "No New Clothes!", "Cool Off!", "FlyLess!", "Organic Only!"}));
  EXPECT_EQ(titles(campaignsIFunded()),
            (Titles{"Compost for Christ!", "Lights Out!", "Carpool for Salvation"}));
  EXPECT_EQ(titles(myUnfundedCampaigns()), (Titles{"Eco-Friendly Stove!", "Dine Out Less!"}));
}

TEST(CatalogueTest, AnAccessorAnswersTheSameStorageEachTime) {
  otherCampaigns().clear();
  campaignsIFunded().clear();
  myUnfundedCampaigns().clear();
  currentUserName() = "Maren";

  EXPECT_TRUE(otherCampaigns().empty());
  EXPECT_TRUE(campaignsIFunded().empty());
  EXPECT_TRUE(myUnfundedCampaigns().empty());
  EXPECT_EQ(currentUserName(), "Maren");
}

TEST(CatalogueTest, ANameStoredBeforeTheFirstUseIsTheCreatorOfMyCampaigns) {
  currentUserName() = "Maren";

  EXPECT_EQ(myUnfundedCampaigns()[0]->creator(), "Maren");
  EXPECT_EQ(myUnfundedCampaigns()[1]->creator(), "Maren");
}

TEST(CatalogueTest, ANameStoredAfterTheFirstUseLeavesMyCampaignsToQuillon) {
  myUnfundedCampaigns();

  currentUserName() = "Maren";

  EXPECT_EQ(myUnfundedCampaigns()[0]->creator(), "Quillon");
  EXPECT_EQ(myUnfundedCampaigns()[1]->creator(), "Quillon");
}

TEST(CatalogueTest, UsingTheOtherListsDoesNotSettleTheCreatorOfMyCampaigns) {
  otherCampaigns();
  writeSeedUpdates();
  campaignListNamed("otherCampaigns");
  campaignListNamed("MyCampaigns");

  currentUserName() = "Maren";

  EXPECT_EQ(myUnfundedCampaigns()[0]->creator(), "Maren");
}

TEST(CatalogueTest, EachListNameSelectsItsList) {
  EXPECT_EQ(campaignListNamed("otherCampaigns"), &otherCampaigns());
  EXPECT_EQ(campaignListNamed("campaignsIFunded"), &campaignsIFunded());
  EXPECT_EQ(campaignListNamed("myUnfundedCampaigns"), &myUnfundedCampaigns());
}

TEST(CatalogueTest, TheReuseIdentifierMyCampaignsSelectsNoList) {
  EXPECT_EQ(campaignListNamed("MyCampaigns"), nullptr);
}

TEST(CatalogueTest, ANameThatIsNotExactlyAListNameSelectsNoList) {
  for (const char* name : {"", "OtherCampaigns", "othercampaigns", "CAMPAIGNSIFUNDED",
                           "campaignsIfunded", "MyUnfundedCampaigns", "myUnfundedCampaigns ",
                           " otherCampaigns", "otherCampaign", "otherCampaignss"}) {
    EXPECT_EQ(campaignListNamed(name), nullptr) << '"' << name << '"';
  }
}

TEST(CatalogueTest, AConfirmedPledgeMovesTheSameObjectAndShiftsThePositionsBehindIt) {
  const CampaignClass* solar = otherCampaigns()[2].get();

  moveToFunded(2);

  ASSERT_EQ(otherCampaigns().size(), 6U);
  EXPECT_EQ(otherCampaigns()[2]->title(), "No New Clothes!");
  EXPECT_EQ(titles(campaignsIFunded()), (Titles{"Solar Panel House", "Compost for Christ!",
                                                "Lights Out!", "Carpool for Salvation"}));
  EXPECT_EQ(campaignsIFunded()[0].get(), solar);
}

TEST(CatalogueTest, TheLastCampaignCanBePledgedToAndLeavesTheOthersInOrder) {
  moveToFunded(6);

  EXPECT_EQ(titles(otherCampaigns()),
            (Titles{"Vegetarian for PETA", "Biking to Work!", "Solar Panel House",
                    "No New Clothes!", "Cool Off!", "FlyLess!"}));
  EXPECT_EQ(campaignsIFunded()[0]->title(), "Organic Only!");
}

TEST(CatalogueTest, ANewCampaignStandsInFrontOfTheStove) {
  const auto created = std::make_shared<CampaignClass>(
      "Plant a Tree!", currentUserName(), 80.0F, 0.0F, "", "http://host/tree.jpg", "", 2, "Dec");

  myUnfundedCampaigns().insert(myUnfundedCampaigns().begin(), created);

  EXPECT_EQ(myUnfundedCampaigns()[0], created);
  EXPECT_EQ(titles(myUnfundedCampaigns()),
            (Titles{"Plant a Tree!", "Eco-Friendly Stove!", "Dine Out Less!"}));
}

// All a thread can tell about the catalogue at its first use.
struct Seen {
  CampaignList* others;
  CampaignList* funded;
  CampaignList* mine;
  std::string* name;
  std::size_t campaigns;

  bool operator==(const Seen&) const = default;
};

Seen seenAtFirstUse() {
  Seen seen{&otherCampaigns(), &campaignsIFunded(), &myUnfundedCampaigns(), &currentUserName(), 0};
  for (const CampaignList* list : {seen.others, seen.funded, seen.mine}) {
    seen.campaigns += list->size();
  }
  return seen;
}

TEST(CatalogueTest, AFirstUseFromEightThreadsAtOnceCreatesEachValueOnce) {
  std::array<Seen, 8> seen{};
  std::barrier start(static_cast<std::ptrdiff_t>(seen.size()));
  {
    std::vector<std::jthread> threads;
    for (Seen& mine : seen) {
      threads.emplace_back([&start, &mine] {
        start.arrive_and_wait();
        mine = seenAtFirstUse();
      });
    }
  }

  EXPECT_EQ(seen[0].campaigns, 12U);
  for (const Seen& each : seen) EXPECT_TRUE(each == seen[0]);
}

}  // namespace
}  // namespace leafund
