// Unicode.h by the browser, which has the tables.
#include "platform/foundation/Unicode.h"
#include "platform/web/Bridge.h"

namespace leafund {

namespace {

// Whether the browser's dialect reads the pattern as ICU's does. That is so for literals, sets,
// groups without a name, counts and anchors: all that the application's one pattern is made of.
bool isReadAlike(std::string_view pattern) {
  constexpr std::string_view escapable = R"(.*+?^$|()[]{}\/-)";
  bool inSet = false;
  for (std::size_t at = 0; at < pattern.size(); ++at) {
    const auto rest = pattern.substr(at + 1);
    switch (pattern[at]) {
      case '\\':
        if (rest.empty() || escapable.find(rest[0]) == std::string_view::npos) return false;
        ++at;
        break;
      case '[':
        if (inSet) return false;  // a set within a set
        inSet = true;
        break;
      case ']':
        inSet = false;
        break;
      case '&':
      case '-':
        if (inSet && rest.starts_with(pattern[at])) return false;  // the common part, the rest
        break;
      case '.':
        if (!inSet) return false;  // what ends a line is not the same
        break;
      case '(':
        if (!inSet && rest.starts_with('?') && !rest.starts_with("?:")) return false;
        break;
      case '*':
      case '+':
      case '?':
      case '}':
        if (!inSet && rest.starts_with('+')) return false;  // never gives back
        break;
      default:
        break;
    }
  }
  return true;
}

}  // namespace

bool canonicallyEquivalent(std::string_view a, std::string_view b) {
  return a == b || page::equivalent(a.data(), a.size(), b.data(), b.size()) == 1;
}

std::optional<bool> matchesWholeText(std::string_view pattern, std::string_view text) {
  if (!isReadAlike(pattern)) return std::nullopt;
  const int answer = page::matches(pattern.data(), pattern.size(), text.data(), text.size());
  if (answer < 0) return std::nullopt;
  return answer == 1;
}

}  // namespace leafund
