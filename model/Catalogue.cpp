#include "model/Catalogue.h"

#include <cstddef>
#include <cstdio>
#include <cstdlib>

#include "model/PictureHost.h"
#include "model/SeedCampaigns.h"

#ifdef LEAFUND_COVERAGE
extern "C" void __gcov_dump();
#endif

namespace leafund {
namespace {

// A programming error ends in the same line as everywhere else; this room stands on the standard
// library alone and cannot call the platform's fatalError.
[[noreturn]] void stopOutside(std::size_t position, std::size_t count) noexcept {
  std::fprintf(stderr, "Leafund stopped: writeSeedUpdates: position %zu is outside a list of %zu\n",
               position, count);
#ifdef LEAFUND_COVERAGE
  __gcov_dump();  // abort() discards the counters
#endif
  std::abort();  // GCOVR_EXCL_LINE: it runs when the counters have been written
}

void writeUpdate(CampaignList& list, std::size_t position, const SeedUpdate& update) {
  if (position >= list.size()) stopOutside(position, list.size());
  CampaignClass& campaign = *list[position];
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
