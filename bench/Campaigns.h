#pragma once

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "model/Catalogue.h"

namespace leafund {

// A figure is worth nothing when what was timed did not happen.
inline void demand(bool holds, std::string_view what) {
  if (holds) return;
  std::fprintf(stderr, "not so: %.*s\n", static_cast<int>(what.size()), what.data());
  std::abort();
}

// Makes a list of that many campaigns, alike but for their titles. They are kept for the next time:
// to free a million records would cost whoever allocates next.
inline void resizeList(CampaignList& list, std::size_t count) {
  static auto& kept = *new CampaignList;
  while (kept.size() < count) {
    kept.push_back(std::make_shared<CampaignClass>(
        "Campaign " + std::to_string(kept.size()), "Wren", 200.0F, 120.0F,
        "A year without the car.", "http://127.0.0.1:9/none.jpg",
        "I leave the car at home for a year and raise money for the otters.", 4, "Dec"));
  }
  list.assign(kept.begin(), kept.begin() + static_cast<std::ptrdiff_t>(count));
}

}  // namespace leafund
