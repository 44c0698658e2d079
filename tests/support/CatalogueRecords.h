#pragma once

#include <string>
#include <vector>

#include "model/Catalogue.h"

namespace leafund {

// Everything the catalogue holds: a line a record with all its fields, list by list, and the user's
// name. Of two that are equal, nothing was changed in between. Makes what was not used before.
inline std::vector<std::string> catalogueRecords() {
  std::vector<std::string> records;
  for (const auto* name : {"otherCampaigns", "campaignsIFunded", "myUnfundedCampaigns"}) {
    records.emplace_back(name);
    for (const auto& campaign : *campaignListNamed(name)) {
      std::string record;
      for (const auto& field :
           {campaign->title(), campaign->creator(), std::to_string(campaign->totalFunding()),
            std::to_string(campaign->currFunding()), campaign->campaignDescription(),
            campaign->photo(), campaign->shortDescription(), std::to_string(campaign->dayCreated()),
            campaign->monthCreated(), campaign->updateOnePhoto(), campaign->updateOneText(),
            campaign->updateOneDate()}) {
        record += field + " | ";
      }
      records.push_back(record);
    }
  }
  records.push_back(currentUserName());
  return records;
}

}  // namespace leafund
