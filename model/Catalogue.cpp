#include "model/Catalogue.h"

#include <cstddef>

#include "model/PictureHost.h"
#include "model/SeedCampaigns.h"

namespace leafund {
namespace {

// Writing an update to a position the list does not have is a programming error. The function is
// noexcept so that the exception of at() ends the process here, where no caller can swallow it.
void writeUpdate(CampaignList& list, std::size_t position, const SeedUpdate& update) noexcept {
  CampaignClass& campaign = *list.at(position);
  campaign.setUpdateOneDate(std::string(update.date));
  campaign.setUpdateOneText(std::string(update.text));
  campaign.setUpdateOnePhoto(pictureAddress(update.pictureFile));
}

}  // namespace

// A function-local static is created once, whichever thread comes first, and a list is complete
// before anyone can see it. The values live on the heap and are never freed, so that nothing that
// still runs while the process exits can meet a destroyed list.

CampaignList& otherCampaigns() {
  static CampaignList& list = *new CampaignList(seedOtherCampaigns());
  return list;
}

CampaignList& campaignsIFunded() {
  static CampaignList& list = *new CampaignList(seedCampaignsIFunded());
  return list;
}

CampaignList& myUnfundedCampaigns() {
  // The name is read at the first use of this list and at no other time: a sign-up that came before
  // is the creator of both campaigns, and a later one leaves them as they are.
  static CampaignList& list = *new CampaignList(seedMyUnfundedCampaigns(currentUserName()));
  return list;
}

std::string& currentUserName() {
  static std::string& name = *new std::string("Quillon");
  return name;
}

CampaignList* campaignListNamed(std::string_view listName) {
  if (listName == "otherCampaigns") return &otherCampaigns();
  if (listName == "campaignsIFunded") return &campaignsIFunded();
  if (listName == "myUnfundedCampaigns") return &myUnfundedCampaigns();
  return nullptr;
}

void writeSeedUpdates() {
  // By position and not by campaign: after a pledge the updates belong to whichever campaigns then
  // stand in front.
  for (std::size_t position = 0; position < seedUpdates.size(); ++position) {
    writeUpdate(campaignsIFunded(), position, seedUpdates[position]);
  }
}

}  // namespace leafund
