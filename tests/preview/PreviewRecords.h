#pragma once

#include <memory>
#include <string>

#include "model/Catalogue.h"

namespace leafund {

// Several sentences, with a word in them that is longer than any screen is wide.
std::string longWords();

// Campaigns at the ends of what a screen must bear: all texts long, and all empty.
std::shared_ptr<CampaignClass> longCampaign();
std::shared_ptr<CampaignClass> emptyCampaign();

// Ten thousand, with the pictures of the catalogue in turn.
CampaignList manyCampaigns();

}  // namespace leafund
