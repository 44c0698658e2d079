#pragma once

#include <deque>
#include <memory>
#include <string>
#include <string_view>

#include "model/CampaignClass.h"

namespace leafund {

// What is newest comes first, and a list may be long: a deque grows at its front without moving the
// rest, which is 16 MB of a million campaigns.
using CampaignList = std::deque<std::shared_ptr<CampaignClass>>;

// The whole data store: four process-wide values, each created on first use, exactly once from
// whichever thread comes first, and never freed. Afterwards they belong to the main thread; the
// lists have no lock. Callers read, index, insert and remove directly.
CampaignList& otherCampaigns();
CampaignList& campaignsIFunded();
CampaignList& myUnfundedCampaigns();
std::string& currentUserName();

// The list a list name selects, or nullptr for a name that selects none.
CampaignList* campaignListNamed(std::string_view listName);

// Writes the demonstration updates into the campaigns at positions 0 and 1 of `campaignsIFunded`.
// Fatal at the first position that the list does not have.
void writeSeedUpdates();

}  // namespace leafund
