#pragma once

#include <array>
#include <string>
#include <string_view>

#include "model/Catalogue.h"

namespace leafund {

// The demonstration data every launch starts from. Each call builds new records, so only the
// catalogue calls these, once per list.
CampaignList seedOtherCampaigns();
CampaignList seedCampaignsIFunded();
CampaignList seedMyUnfundedCampaigns(const std::string& creator);

struct SeedUpdate {
  std::string_view date;
  std::string_view text;
  std::string_view pictureFile;
};

// For the positions 0 and 1 of `campaignsIFunded`, in this order.
extern const std::array<SeedUpdate, 2> seedUpdates;

}  // namespace leafund
