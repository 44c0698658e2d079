// Unicode.h by the browser, which has the tables.
#include "platform/foundation/Unicode.h"
#include "platform/web/Bridge.h"

namespace leafund {

bool canonicallyEquivalent(std::string_view a, std::string_view b) {
  return a == b || page::equivalent(a.data(), a.size(), b.data(), b.size()) == 1;
}

std::optional<bool> matchesWholeText(std::string_view pattern, std::string_view text) {
  const int answer = page::matches(pattern.data(), pattern.size(), text.data(), text.size());
  return answer < 0 ? std::nullopt : std::optional(answer == 1);
}

}  // namespace leafund
