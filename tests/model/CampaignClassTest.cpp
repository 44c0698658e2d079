#include <gtest/gtest.h>

#include <concepts>
#include <cstddef>
#include <memory>
#include <type_traits>
#include <vector>

#include "model/CampaignClass.h"

namespace leafund {
namespace {

std::shared_ptr<CampaignClass> campaignWithFunding(float totalFunding, float currFunding) {
  return std::make_shared<CampaignClass>("Plant a Tree!", "Rowan", totalFunding, currFunding,
                                         "One tree, and then another.", "http://host/tree.jpg",
                                         "I'll plant a tree!", 31, "Oct");
}

TEST(CampaignClassTest, TheNineValuesGivenAreStoredUnchanged) {
  const auto campaign = campaignWithFunding(80.5F, 12.25F);

  EXPECT_EQ(campaign->title(), "Plant a Tree!");
  EXPECT_EQ(campaign->creator(), "Rowan");
  EXPECT_EQ(campaign->totalFunding(), 80.5F);
  EXPECT_EQ(campaign->currFunding(), 12.25F);
  EXPECT_EQ(campaign->campaignDescription(), "One tree, and then another.");
  EXPECT_EQ(campaign->photo(), "http://host/tree.jpg");
  EXPECT_EQ(campaign->shortDescription(), "I'll plant a tree!");
  EXPECT_EQ(campaign->dayCreated(), 31);
  EXPECT_EQ(campaign->monthCreated(), "Oct");
}

TEST(CampaignClassTest, ANewRecordHasNoUpdate) {
  const auto campaign = campaignWithFunding(100.0F, 0.0F);

  EXPECT_EQ(campaign->updateOnePhoto(), "");
  EXPECT_EQ(campaign->updateOneText(), "");
  EXPECT_EQ(campaign->updateOneDate(), "");
}

TEST(CampaignClassTest, ValuesAreNeitherCheckedNorNormalised) {
  const CampaignClass campaign("", " Two  spaces ", -1.0F, -2.0F, "", "not an address", "\n", -40,
                               "november");

  EXPECT_EQ(campaign.title(), "");
  EXPECT_EQ(campaign.creator(), " Two  spaces ");
  EXPECT_EQ(campaign.totalFunding(), -1.0F);
  EXPECT_EQ(campaign.currFunding(), -2.0F);
  EXPECT_EQ(campaign.campaignDescription(), "");
  EXPECT_EQ(campaign.photo(), "not an address");
  EXPECT_EQ(campaign.shortDescription(), "\n");
  EXPECT_EQ(campaign.dayCreated(), -40);
  EXPECT_EQ(campaign.monthCreated(), "november");
}

TEST(CampaignClassTest, EachOfTheTwelveFieldsCanBeWrittenAndChangesNoOther) {
  const auto campaign = campaignWithFunding(100.0F, 0.0F);

  campaign->setTitle("title");
  campaign->setCreator("creator");
  campaign->setTotalFunding(1.5F);
  campaign->setCurrFunding(2.5F);
  campaign->setCampaignDescription("campaignDescription");
  campaign->setPhoto("photo");
  campaign->setShortDescription("shortDescription");
  campaign->setDayCreated(7);
  campaign->setMonthCreated("monthCreated");
  campaign->setUpdateOnePhoto("updateOnePhoto");
  campaign->setUpdateOneText("updateOneText");
  campaign->setUpdateOneDate("updateOneDate");

  EXPECT_EQ(campaign->title(), "title");
  EXPECT_EQ(campaign->creator(), "creator");
  EXPECT_EQ(campaign->totalFunding(), 1.5F);
  EXPECT_EQ(campaign->currFunding(), 2.5F);
  EXPECT_EQ(campaign->campaignDescription(), "campaignDescription");
  EXPECT_EQ(campaign->photo(), "photo");
  EXPECT_EQ(campaign->shortDescription(), "shortDescription");
  EXPECT_EQ(campaign->dayCreated(), 7);
  EXPECT_EQ(campaign->monthCreated(), "monthCreated");
  EXPECT_EQ(campaign->updateOnePhoto(), "updateOnePhoto");
  EXPECT_EQ(campaign->updateOneText(), "updateOneText");
  EXPECT_EQ(campaign->updateOneDate(), "updateOneDate");
}

TEST(CampaignClassTest, AWriteThroughOneHolderIsSeenThroughEveryOther) {
  const std::vector<std::shared_ptr<CampaignClass>> list{campaignWithFunding(100.0F, 40.0F)};
  const std::shared_ptr<CampaignClass> heldByAScreen = list.front();

  heldByAScreen->setCurrFunding(50.0F);

  EXPECT_EQ(list.front()->currFunding(), 50.0F);
}

TEST(CampaignClassTest, MoreThanTheGoalMayBeRaised) {
  EXPECT_EQ(campaignWithFunding(100.0F, 130.0F)->currFunding(), 130.0F);
}

TEST(CampaignClassTest, TheGoalMayBeZero) {
  const auto campaign = campaignWithFunding(0.0F, 20.0F);

  EXPECT_EQ(campaign->totalFunding(), 0.0F);
  EXPECT_EQ(campaign->currFunding(), 20.0F);
}

TEST(CampaignClassTest, ASecondUpdateReplacesTheFirstWhole) {
  const auto campaign = campaignWithFunding(100.0F, 0.0F);
  campaign->setUpdateOneDate("December 1");
  campaign->setUpdateOneText("The hole is dug.");
  campaign->setUpdateOnePhoto("http://host/hole.jpg");

  campaign->setUpdateOneDate("December 9");
  campaign->setUpdateOneText("The tree stands.");
  campaign->setUpdateOnePhoto("http://host/stands.jpg");

  EXPECT_EQ(campaign->updateOneDate(), "December 9");
  EXPECT_EQ(campaign->updateOneText(), "The tree stands.");
  EXPECT_EQ(campaign->updateOnePhoto(), "http://host/stands.jpg");
}

TEST(CampaignClassTest, ARecordIsFreedWithItsLastHolder) {
  auto campaign = campaignWithFunding(100.0F, 0.0F);
  const std::weak_ptr<CampaignClass> watched = campaign;
  auto otherHolder = campaign;

  campaign.reset();
  EXPECT_FALSE(watched.expired());
  otherHolder.reset();
  EXPECT_TRUE(watched.expired());
}

// What the type refuses is settled by the compiler; a change of it fails this file.
static_assert(!std::copyable<CampaignClass> && !std::movable<CampaignClass>);
static_assert(!std::is_default_constructible_v<CampaignClass>);
static_assert(!std::equality_comparable<CampaignClass>);
static_assert(
    std::same_as<decltype(&CampaignClass::totalFunding), float (CampaignClass::*)() const>);
static_assert(
    std::same_as<decltype(&CampaignClass::currFunding), float (CampaignClass::*)() const>);
static_assert(
    std::same_as<decltype(&CampaignClass::dayCreated), std::ptrdiff_t (CampaignClass::*)() const>);

}  // namespace
}  // namespace leafund
