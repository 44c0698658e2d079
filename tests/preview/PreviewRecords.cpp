#include "tests/preview/PreviewRecords.h"

#include "model/PictureHost.h"
#include "model/SeedCampaigns.h"

namespace leafund {

std::string longWords() {
  std::string words = "A promise that needs " + std::string(80, 'o') + " many words. ";
  for (int sentence = 0; sentence < 40; ++sentence) {
    words += "Sentence after sentence says what is pledged, for whom and for how long. ";
  }
  return words;
}

std::shared_ptr<CampaignClass> longCampaign() {
  auto campaign = std::make_shared<CampaignClass>(
      "A title that goes on and on, and then a little further than anybody expected",
      "Wilhelmina-Theodora and Maximilian-Bartholomew of the Upper Riverside", 9999999.0F,
      1234567.25F, longWords(), pictureAddress("solar-panel-house.jpg"), longWords(), 31, "Dec");
  campaign->setUpdateOneDate("The thirty-first of December, late in the evening");
  campaign->setUpdateOneText(longWords());
  campaign->setUpdateOnePhoto(pictureAddress("update-compost.jpg"));
  return campaign;
}

std::shared_ptr<CampaignClass> emptyCampaign() {
  return std::make_shared<CampaignClass>("", "", 100.0F, 0.0F, "", placeholderPictureAddress(), "",
                                         1, "");
}

CampaignList manyCampaigns() {
  constexpr std::size_t count = 10'000;
  const CampaignList seeds = seedOtherCampaigns();
  CampaignList campaigns;
  while (campaigns.size() < count) {
    const CampaignClass& seed = *seeds[campaigns.size() % seeds.size()];
    campaigns.push_back(std::make_shared<CampaignClass>(
        "Campaign " + std::to_string(campaigns.size() + 1), seed.creator(), seed.totalFunding(),
        seed.currFunding(), seed.shortDescription(), seed.photo(), seed.shortDescription(), 4,
        "Dec"));
  }
  return campaigns;
}

}  // namespace leafund
