#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "model/Catalogue.h"
#include "model/PictureHost.h"

namespace leafund {
namespace {

struct Row {
  std::string title;
  std::string creator;
  float totalFunding;
  float currFunding;
  std::ptrdiff_t dayCreated;
  std::string monthCreated;
  std::string shortDescription;
  std::size_t descriptionLength;
  std::string pictureFile;
};

const std::vector<Row> otherRows = {
    {
        .title = "Vegetarian for PETA",
        .creator = "Arlo",
        .totalFunding = 200.0F,
        .currFunding = 120.0F,
        .dayCreated = 16,
        .monthCreated = "Nov",
        .shortDescription = "Hi, my name is Arlo and I'm going to go vegetarian for a year to "
                            "raise money for PETA!",
        .descriptionLength = 213,
        .pictureFile = "vegetarian-for-peta.jpg",
    },
    {
        .title = "Biking to Work!",
        .creator = "Tamsin",
        .totalFunding = 200.0F,
        .currFunding = 67.0F,
        .dayCreated = 15,
        .monthCreated = "Nov",
        .shortDescription = "Hey, I'm Tamsin, and I plan to bike to work every day for a year in "
                            "order to raise money for UNICEF.",
        .descriptionLength = 220,
        .pictureFile = "biking-to-work.jpg",
    },
    {
        .title = "Solar Panel House",
        .creator = "Wren",
        .totalFunding = 300.0F,
        .currFunding = 175.0F,
        .dayCreated = 12,
        .monthCreated = "Nov",
        .shortDescription =
            "I plan to install solar panels to take care of at least 50% of my energy consumption!",
        .descriptionLength = 237,
        .pictureFile = "solar-panel-house.jpg",
    },
    {
        .title = "No New Clothes!",
        .creator = "Odile",
        .totalFunding = 125.0F,
        .currFunding = 40.0F,
        .dayCreated = 1,
        .monthCreated = "Nov",
        .shortDescription = "I'll stop buying clothes to help the Red Cross!",
        .descriptionLength = 244,
        .pictureFile = "no-new-clothes.jpg",
    },
    {
        .title = "Cool Off!",
        .creator = "Corin",
        .totalFunding = 150.0F,
        .currFunding = 60.0F,
        .dayCreated = 28,
        .monthCreated = "Oct",
        .shortDescription = "I'll reduce my driving by an hour a week!",
        .descriptionLength = 463,
        .pictureFile = "cool-off.jpg",
    },
    {
        .title = "FlyLess!",
        .creator = "Isolde",
        .totalFunding = 200.0F,
        .currFunding = 80.0F,
        .dayCreated = 24,
        .monthCreated = "Oct",
        .shortDescription = "I'll fly less for the kids of America!",
        .descriptionLength = 328,
        .pictureFile = "fly-less.jpg",
    },
    {
        .title = "Organic Only!",
        .creator = "Barnaby",
        .totalFunding = 50.0F,
        .currFunding = 10.0F,
        .dayCreated = 23,
        .monthCreated = "Oct",
        .shortDescription = "I won't eat processed food for Feeding America!",
        .descriptionLength = 271,
        .pictureFile = "organic-only.jpg",
    },
};

const std::vector<Row> fundedRows = {
    {
        .title = "Compost for Christ!",
        .creator = "Lucan",
        .totalFunding = 100.0F,
        .currFunding = 100.0F,
        .dayCreated = 18,
        .monthCreated = "Nov",
        .shortDescription = "I'll be composting my trash to raise money for christian charities",
        .descriptionLength = 229,
        .pictureFile = "compost-for-christ.jpg",
    },
    {
        .title = "Lights Out!",
        .creator = "Emrys",
        .totalFunding = 50.0F,
        .currFunding = 50.0F,
        .dayCreated = 6,
        .monthCreated = "Nov",
        .shortDescription = "I'm turning off the lights to give hope to Syrian refugees.",
        .descriptionLength = 177,
        .pictureFile = "lights-out.jpg",
    },
    {
        .title = "Carpool for Salvation",
        .creator = "Nell and Ivo",
        .totalFunding = 100.0F,
        .currFunding = 60.0F,
        .dayCreated = 4,
        .monthCreated = "Nov",
        .shortDescription = "We're carpooling to work to help the Salvation Army!",
        .descriptionLength = 222,
        .pictureFile = "carpool-for-salvation.jpg",
    },
};

const std::vector<Row> myRows = {
    {
        .title = "Eco-Friendly Stove!",
        .creator = "Quillon",
        .totalFunding = 250.0F,
        .currFunding = 45.0F,
        .dayCreated = 14,
        .monthCreated = "Nov",
        .shortDescription = "I'll buy a new stove to save dolphins!",
        .descriptionLength = 260,
        .pictureFile = "eco-friendly-stove.jpg",
    },
    {
        .title = "Dine Out Less!",
        .creator = "Quillon",
        .totalFunding = 150.0F,
        .currFunding = 25.0F,
        .dayCreated = 10,
        .monthCreated = "Nov",
        .shortDescription = "Glip Glop Plippety Plop!",
        .descriptionLength = 279,
        .pictureFile = "dine-out-less.jpg",
    },
};

void expectCampaign(const CampaignClass& campaign, const Row& row) {
  SCOPED_TRACE(row.title);
  EXPECT_EQ(campaign.title(), row.title);
  EXPECT_EQ(campaign.creator(), row.creator);
  EXPECT_EQ(campaign.totalFunding(), row.totalFunding);
  EXPECT_EQ(campaign.currFunding(), row.currFunding);
  EXPECT_EQ(campaign.dayCreated(), row.dayCreated);
  EXPECT_EQ(campaign.monthCreated(), row.monthCreated);
  EXPECT_EQ(campaign.shortDescription(), row.shortDescription);
  EXPECT_EQ(campaign.campaignDescription().size(), row.descriptionLength);
  EXPECT_EQ(campaign.photo(), pictureAddress(row.pictureFile));
}

void expectCampaigns(const CampaignList& list, const std::vector<Row>& rows) {
  ASSERT_EQ(list.size(), rows.size());
  for (std::size_t position = 0; position < rows.size(); ++position) {
    expectCampaign(*list[position], rows[position]);
  }
}

TEST(SeedCampaignsTest, EveryFieldOfTheOtherCampaignsIsAsTabled) {
  expectCampaigns(otherCampaigns(), otherRows);
}

TEST(SeedCampaignsTest, EveryFieldOfTheCampaignsIFundedIsAsTabled) {
  expectCampaigns(campaignsIFunded(), fundedRows);
}

TEST(SeedCampaignsTest, EveryFieldOfMyCampaignsIsAsTabled) {
  expectCampaigns(myUnfundedCampaigns(), myRows);
}

// The lengths above count bytes, which are characters only as long as every text is ASCII.
TEST(SeedCampaignsTest, EveryTextIsPrintableAscii) {
  writeSeedUpdates();
  for (const CampaignList* list :
       {&otherCampaigns(), &campaignsIFunded(), &myUnfundedCampaigns()}) {
    for (const auto& campaign : *list) {
      const std::string texts = campaign->campaignDescription() + campaign->updateOneText();
      EXPECT_TRUE(std::ranges::all_of(texts, [](char c) { return c >= ' ' && c <= '~'; }))
          << campaign->title();
    }
  }
}

}  // namespace
}  // namespace leafund
