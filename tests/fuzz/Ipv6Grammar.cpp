#include <algorithm>
#include <cstddef>

#include "tests/fuzz/UriGrammar.h"

namespace leafund::fuzz {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isHexDigit(char c) { return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }

// A dec-octet: 0 to 255, without a leading zero.
bool isOctet(std::string_view text) {
  if (text.empty() || text.size() > 3 || !std::all_of(text.begin(), text.end(), isDigit)) {
    return false;
  }
  if (text.size() > 1 && text.front() == '0') return false;
  int value = 0;
  for (const char digit : text) value = 10 * value + (digit - '0');
  return value <= 255;
}

bool isIpv4Address(std::string_view text) {
  for (int octet = 0; octet < 3; ++octet) {
    const std::size_t dot = text.find('.');
    if (dot == std::string_view::npos || !isOctet(text.substr(0, dot))) return false;
    text.remove_prefix(dot + 1);
  }
  return isOctet(text);
}

bool isGroup(std::string_view text) {
  return !text.empty() && text.size() <= 4 && std::all_of(text.begin(), text.end(), isHexDigit);
}

constexpr int notGroups = 100;

// How many groups of 16 bits the text spells, more than fit an address when it spells none. An IPv4
// address may stand for the last two where the whole address ends.
int groupsOf(std::string_view text, bool atEnd) {
  if (text.empty()) return 0;
  int count = 0;
  for (;;) {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) break;
    if (!isGroup(text.substr(0, colon))) return notGroups;
    ++count;
    text.remove_prefix(colon + 1);
  }
  if (isGroup(text)) return count + 1;
  return atEnd && isIpv4Address(text) ? count + 2 : notGroups;
}

}  // namespace

bool isIpv6Address(std::string_view text) {
  const std::size_t gap = text.find("::");
  if (gap == std::string_view::npos) return groupsOf(text, true) == 8;
  // The gap stands for at least one group.
  return groupsOf(text.substr(0, gap), false) + groupsOf(text.substr(gap + 2), true) <= 7;
}

}  // namespace leafund::fuzz
