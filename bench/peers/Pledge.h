#pragma once

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "model/Catalogue.h"

// What the peers share besides the catalogue: the arithmetic of a pledge, which no toolkit decides.
namespace leafund::peers {

inline std::string dollars(float amount) {
  char text[64];
  std::snprintf(text, sizeof text, "$%.2f", static_cast<double>(amount));
  return text;
}

// Why the amount cannot be pledged, or nothing if it can; `amount` is in dollars.
inline std::string complaintAbout(const CampaignClass& campaign, const std::string& amount) {
  char* end = nullptr;
  const float value = std::strtof(amount.c_str(), &end);
  if (amount.empty() || *end != '\0') {
    return "Error: Please Enter an Amount, for Example 25 or 12.50";
  }
  if (value > campaign.totalFunding() - campaign.currFunding()) {
    return "Error: Donation Exceeds Maximum";
  }
  return {};
}

// Books the pledge and moves the campaign from those to browse to those funded. The row must be
// one of `otherCampaigns`, and the amount one without a complaint.
inline void bookPledge(std::size_t row, const std::string& amount) {
  auto& others = otherCampaigns();
  const auto campaign = others.at(row);
  campaign->setCurrFunding(campaign->currFunding() + std::strtof(amount.c_str(), nullptr));
  others.erase(others.begin() + static_cast<std::ptrdiff_t>(row));
  campaignsIFunded().push_front(campaign);
}

}  // namespace leafund::peers
