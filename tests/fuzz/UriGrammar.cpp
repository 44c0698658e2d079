#include "tests/fuzz/UriGrammar.h"

#include <algorithm>
#include <cstddef>

namespace leafund::fuzz {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isHexDigit(char c) { return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }

bool isOneOf(char c, std::string_view set) { return set.find(c) != std::string_view::npos; }
bool isUnreserved(char c) { return isLetter(c) || isDigit(c) || isOneOf(c, "-._~"); }
bool isSubDelimiter(char c) { return isOneOf(c, "!$&'()*+,;="); }

// Unreserved characters, sub-delimiters, escapes and the characters of `more`.
bool isMadeOf(std::string_view text, std::string_view more) {
  while (!text.empty()) {
    if (text.front() == '%') {
      if (text.size() < 3 || !isHexDigit(text[1]) || !isHexDigit(text[2])) return false;
      text.remove_prefix(3);
    } else {
      const char c = text.front();
      if (!isUnreserved(c) && !isSubDelimiter(c) && !isOneOf(c, more)) return false;
      text.remove_prefix(1);
    }
  }
  return true;
}

bool isScheme(std::string_view text) {
  return !text.empty() && isLetter(text.front()) &&
         std::all_of(text.begin(), text.end(),
                     [](char c) { return isLetter(c) || isDigit(c) || isOneOf(c, "+-."); });
}

bool isIpvFuture(std::string_view text) {
  if (text.empty() || (text.front() != 'v' && text.front() != 'V')) return false;
  const std::size_t dot = text.find('.');
  if (dot == std::string_view::npos || dot < 2 || dot + 1 == text.size()) return false;
  const auto allowed = [](char c) { return isUnreserved(c) || isSubDelimiter(c) || c == ':'; };
  return std::all_of(text.begin() + 1, text.begin() + static_cast<std::ptrdiff_t>(dot),
                     isHexDigit) &&
         std::all_of(text.begin() + static_cast<std::ptrdiff_t>(dot) + 1, text.end(), allowed);
}

bool isHost(std::string_view text) {
  if (!text.starts_with('[')) return isMadeOf(text, "");
  if (!text.ends_with(']')) return false;
  const std::string_view inside = text.substr(1, text.size() - 2);
  return isIpvFuture(inside) || isIpv6Address(inside);
}

bool isAuthority(std::string_view text) {
  if (const std::size_t at = text.find('@'); at != std::string_view::npos) {
    if (!isMadeOf(text.substr(0, at), ":")) return false;
    text.remove_prefix(at + 1);
  }
  const std::size_t hostEnd = text.starts_with('[') ? text.find(']') : 0;
  if (hostEnd == std::string_view::npos) return false;
  const std::size_t colon = text.find(':', hostEnd);
  if (colon == std::string_view::npos) return isHost(text);
  return isHost(text.substr(0, colon)) &&
         std::all_of(text.begin() + static_cast<std::ptrdiff_t>(colon) + 1, text.end(), isDigit);
}

// What stands between the scheme and the query.
bool isHierarchy(std::string_view text) {
  if (text.starts_with("//")) {
    text.remove_prefix(2);
    const std::size_t path = std::min(text.find('/'), text.size());
    if (!isAuthority(text.substr(0, path))) return false;
    text.remove_prefix(path);
  }
  return isMadeOf(text, ":@/");
}

}  // namespace

bool isUriReference(std::string_view text) {
  if (const std::size_t hash = text.find('#'); hash != std::string_view::npos) {
    if (!isMadeOf(text.substr(hash + 1), ":@/?")) return false;
    text = text.substr(0, hash);
  }
  if (const std::size_t mark = text.find('?'); mark != std::string_view::npos) {
    if (!isMadeOf(text.substr(mark + 1), ":@/?")) return false;
    text = text.substr(0, mark);
  }
  // The first segment of a relative path holds no colon: it would read as a scheme.
  const std::size_t colon = text.find(':');
  if (colon < text.find('/')) {
    if (!isScheme(text.substr(0, colon))) return false;
    text.remove_prefix(colon + 1);
  }
  return isHierarchy(text);
}

}  // namespace leafund::fuzz
