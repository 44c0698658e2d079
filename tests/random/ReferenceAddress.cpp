#include <algorithm>

#include "tests/random/ReferenceRules.h"

// RFC 3986, appendix A, and the e-mail rule of web forms: by hand, character by character.
namespace leafund::random {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isHex(char c) { return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }
bool oneOf(char c, std::string_view set) { return set.find(c) != std::string_view::npos; }
bool isUnreserved(char c) { return isLetter(c) || isDigit(c) || oneOf(c, "-._~"); }
bool isSubDelimiter(char c) { return oneOf(c, "!$&'()*+,;="); }

// Unreserved characters, sub-delimiters, escapes and those named in `more`.
bool madeOf(std::string_view text, std::string_view more) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char c = text[at];
    if (c == '%') {
      if (at + 2 >= text.size() || !isHex(text[at + 1]) || !isHex(text[at + 2])) return false;
      at += 2;
    } else if (!isUnreserved(c) && !isSubDelimiter(c) && !oneOf(c, more)) {
      return false;
    }
  }
  return true;
}

std::string_view cutAt(std::string_view& text, char mark) {
  const auto at = text.find(mark);
  if (at == std::string_view::npos) return {};
  const auto rest = text.substr(at + 1);
  text = text.substr(0, at);
  return rest;
}

bool isIPv4(std::string_view text) {
  for (int part = 0; part < 4; ++part) {
    std::size_t digits = 0;
    int value = 0;
    while (digits < text.size() && digits < 3 && isDigit(text[digits])) {
      value = value * 10 + (text[digits++] - '0');
    }
    if (digits == 0 || value > 255 || (digits > 1 && text[0] == '0')) return false;
    text.remove_prefix(digits);
    if (part == 3) return text.empty();
    if (text.empty() || text.front() != '.') return false;
    text.remove_prefix(1);
  }
  return false;
}

// The 16-bit groups that the text holds between single colons, or -1.
int ipv6Groups(std::string_view text, bool mayEndInIPv4) {
  if (text.empty()) return 0;
  int groups = 0;
  for (;;) {
    const auto colon = text.find(':');
    const auto group = text.substr(0, colon);
    const bool last = colon == std::string_view::npos;
    if (last && mayEndInIPv4 && isIPv4(group)) return groups + 2;
    if (group.empty() || group.size() > 4 || !std::all_of(group.begin(), group.end(), isHex)) {
      return -1;
    }
    ++groups;
    if (last) return groups;
    text.remove_prefix(colon + 1);
  }
}

bool isIPv6(std::string_view text) {
  const auto gap = text.find("::");
  if (gap == std::string_view::npos) return ipv6Groups(text, true) == 8;
  const int before = ipv6Groups(text.substr(0, gap), false);
  const int after = ipv6Groups(text.substr(gap + 2), true);
  return before >= 0 && after >= 0 && before + after <= 7;
}

bool isIPFuture(std::string_view text) {
  if (text.empty() || (text.front() != 'v' && text.front() != 'V')) return false;
  text.remove_prefix(1);
  const auto dot = text.find('.');
  if (dot == 0 || dot == std::string_view::npos) return false;
  const auto version = text.substr(0, dot);
  const auto rest = text.substr(dot + 1);
  const auto fits = [](char c) { return isUnreserved(c) || isSubDelimiter(c) || c == ':'; };
  return std::all_of(version.begin(), version.end(), isHex) && !rest.empty() &&
         std::all_of(rest.begin(), rest.end(), fits);
}

bool isAuthority(std::string_view text) {
  const auto at = text.find('@');
  if (at != std::string_view::npos) {
    if (!madeOf(text.substr(0, at), ":")) return false;
    text.remove_prefix(at + 1);
  }
  std::string_view port;
  if (!text.empty() && text.front() == '[') {
    const auto close = text.find(']');
    if (close == std::string_view::npos) return false;
    const auto literal = text.substr(1, close - 1);
    if (!isIPv6(literal) && !isIPFuture(literal)) return false;
    port = text.substr(close + 1);
    if (!port.empty() && port.front() != ':') return false;
    if (!port.empty()) port.remove_prefix(1);
  } else {
    port = cutAt(text, ':');
    if (!madeOf(text, "")) return false;
  }
  return std::all_of(port.begin(), port.end(), isDigit);
}

bool isScheme(std::string_view text) {
  return !text.empty() && isLetter(text.front()) &&
         std::all_of(text.begin(), text.end(),
                     [](char c) { return isLetter(c) || isDigit(c) || oneOf(c, "+-."); });
}

bool isDomainLabel(std::string_view label) {
  const auto inner = [](char c) { return isLetter(c) || isDigit(c) || c == '-'; };
  return !label.empty() && label.size() <= 63 && label.front() != '-' && label.back() != '-' &&
         std::all_of(label.begin(), label.end(), inner);
}

}  // namespace

bool isAddress(std::string_view text) {
  if (text.empty()) return false;
  const auto fragment = cutAt(text, '#');
  const auto query = cutAt(text, '?');
  if (!madeOf(fragment, ":@/?") || !madeOf(query, ":@/?")) return false;
  // A colon in the first segment ends a scheme, and nothing else.
  const auto colon = text.substr(0, text.find('/')).find(':');
  if (colon != std::string_view::npos) {
    if (!isScheme(text.substr(0, colon))) return false;
    text.remove_prefix(colon + 1);
  }
  if (text.starts_with("//")) {
    text.remove_prefix(2);
    const auto authority = text.substr(0, text.find('/'));
    if (!isAuthority(authority)) return false;
    text.remove_prefix(authority.size());
  }
  return madeOf(text, ":@/");
}

bool looksLikeEmail(std::string_view text) {
  const auto at = text.find('@');
  if (at == 0 || at == std::string_view::npos) return false;
  const auto local = text.substr(0, at);
  const bool localFits = std::all_of(local.begin(), local.end(), [](char c) {
    return isLetter(c) || isDigit(c) || oneOf(c, ".!#$%&'*+/=?^_`{|}~-");
  });
  if (!localFits) return false;
  for (auto domain = text.substr(at + 1);;) {
    const auto dot = domain.find('.');
    if (!isDomainLabel(domain.substr(0, dot))) return false;
    if (dot == std::string_view::npos) return true;
    domain.remove_prefix(dot + 1);
  }
}

}  // namespace leafund::random
