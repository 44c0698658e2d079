#include "screens/CampaignLookup.h"

#include "platform/foundation/FatalError.h"

namespace leafund {

const std::shared_ptr<CampaignClass>& campaignAt(const CampaignList& list,
                                                 std::optional<std::ptrdiff_t> position,
                                                 std::string_view screen) {
  if (!position) fatalError(screen, "no campaign position was given");
  // Unsigned, so that a negative position lies past the end.
  const auto index = static_cast<std::size_t>(*position);
  if (index >= list.size()) {
    fatalError(screen, "position " + std::to_string(*position) + " is outside a list of " +
                           std::to_string(list.size()));
  }
  return list[index];
}

std::shared_ptr<CampaignClass> campaignIn(const std::optional<std::string>& listName,
                                          std::optional<std::ptrdiff_t> position,
                                          std::string_view screen) {
  const auto* list = listName ? campaignListNamed(*listName) : nullptr;
  return list != nullptr ? campaignAt(*list, position, screen) : nullptr;
}

}  // namespace leafund
