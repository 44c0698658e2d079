#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "model/Catalogue.h"

namespace leafund {

// The campaign at a position of a list. An absent position or one outside the list, a negative one
// included, is fatal; `screen` names who asked.
const std::shared_ptr<CampaignClass>& campaignAt(const CampaignList& list,
                                                 std::optional<std::ptrdiff_t> position,
                                                 std::string_view screen);

// The campaign that a list name and a position select. A name that selects no list, or none at all,
// answers null; then the position is not looked at.
std::shared_ptr<CampaignClass> campaignIn(const std::optional<std::string>& listName,
                                          std::optional<std::ptrdiff_t> position,
                                          std::string_view screen);

}  // namespace leafund
