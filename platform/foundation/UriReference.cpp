#include "platform/foundation/UriReference.h"

#include <algorithm>
#include <array>
#include <cstddef>

// By hand and not by a library, because a browser has none for it and every host must take the same
// addresses. uriparser judges it in the tests.
namespace leafund {

namespace {

// What a character may be part of.
enum Kind : unsigned char {
  Digit = 1,
  HexDigit = 2,
  Letter = 4,
  SchemeMark = 8,  // beside letters and digits
  Plain = 16,      // unreserved, or a sub-delimiter
  Colon = 32,
  PathMark = 64,  // besides the colon
  QueryMark = 128
};

constexpr auto kinds = [] {
  std::array<unsigned char, 256> table{};
  const auto add = [&table](std::string_view characters, int kind) {
    for (const char c : characters)
      table[static_cast<unsigned char>(c)] |= static_cast<unsigned char>(kind);
  };
  add("0123456789", Digit | HexDigit | Plain);
  add("abcdefABCDEF", HexDigit);
  add("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ", Letter | Plain);
  add("+-.", SchemeMark);
  add("-._~!$&'()*+,;=", Plain);
  add(":", Colon);
  add("@/", PathMark);
  add("?", QueryMark);
  return table;
}();

constexpr int kPath = Plain | Colon | PathMark;

bool areAll(std::string_view text, int kind) {
  for (const char c : text) {
    if ((kinds[static_cast<unsigned char>(c)] & kind) == 0) return false;
  }
  return true;
}

// Characters of the kind, and escapes.
bool isMadeOf(std::string_view text, int kind) {
  for (;;) {
    const std::size_t escape = std::min(text.find('%'), text.size());
    if (!areAll(text.substr(0, escape), kind)) return false;
    if (escape == text.size()) return true;
    if (text.size() - escape < 3 || !areAll(text.substr(escape + 1, 2), HexDigit)) return false;
    text.remove_prefix(escape + 3);
  }
}

// What stands before the mark, which goes with it from the text; all of it where there is no mark.
std::string_view cutUpTo(char mark, std::string_view& text) {
  const std::size_t end = std::min(text.find(mark), text.size());
  const auto before = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return before;
}

bool isScheme(std::string_view text) {
  return !text.empty() && areAll(text.substr(0, 1), Letter) &&
         areAll(text, Letter | Digit | SchemeMark);
}

// 0 to 255, without a leading zero.
bool isOctet(std::string_view text) {
  if (text.empty() || text.size() > 3 || !areAll(text, Digit)) return false;
  if (text.size() > 1 && text.front() == '0') return false;
  return text.size() < 3 || text <= "255";
}

bool isIpv4Address(std::string_view text) {
  if (std::count(text.begin(), text.end(), '.') != 3) return false;
  for (int octet = 0; octet < 4; ++octet) {
    if (!isOctet(cutUpTo('.', text))) return false;
  }
  return true;
}

bool isGroup(std::string_view text) {
  return !text.empty() && text.size() <= 4 && areAll(text, HexDigit);
}

constexpr int kNotGroups = 100;

// How many groups of 16 bits the text spells, more than fit an address when it spells none. An IPv4
// address may stand for the last two where the whole address ends.
int groupsOf(std::string_view text, bool atEnd) {
  if (text.empty()) return 0;
  int count = 0;
  for (; text.find(':') != std::string_view::npos; ++count) {
    if (count == 8 || !isGroup(cutUpTo(':', text))) return kNotGroups;
  }
  if (isGroup(text)) return count + 1;
  return atEnd && isIpv4Address(text) ? count + 2 : kNotGroups;
}

bool isIpv6Address(std::string_view text) {
  const std::size_t gap = text.find("::");
  if (gap == std::string_view::npos) return groupsOf(text, true) == 8;
  // The gap stands for at least one group.
  return groupsOf(text.substr(0, gap), false) + groupsOf(text.substr(gap + 2), true) <= 7;
}

bool isFutureAddress(std::string_view text) {
  if (!text.starts_with('v') && !text.starts_with('V')) return false;
  const auto version = cutUpTo('.', text).substr(1);
  return !version.empty() && areAll(version, HexDigit) && !text.empty() &&
         areAll(text, Plain | Colon);
}

bool isHost(std::string_view text) {
  if (!text.starts_with('[')) return isMadeOf(text, Plain);
  if (!text.ends_with(']')) return false;
  const auto inside = text.substr(1, text.size() - 2);
  return isFutureAddress(inside) || isIpv6Address(inside);
}

bool isAuthority(std::string_view text) {
  if (text.find('@') != std::string_view::npos && !isMadeOf(cutUpTo('@', text), Plain | Colon))
    return false;
  const std::size_t colon = text.find(':', text.starts_with('[') ? text.find(']') : 0);
  if (colon == std::string_view::npos) return isHost(text);
  return isHost(text.substr(0, colon)) && areAll(text.substr(colon + 1), Digit);
}

// What stands between the scheme and the query.
bool isHierarchy(std::string_view text) {
  if (text.starts_with("//")) {
    text.remove_prefix(2);
    const std::size_t path = std::min(text.find('/'), text.size());
    if (!isAuthority(text.substr(0, path))) return false;
    text.remove_prefix(path);
  }
  return isMadeOf(text, kPath);
}

}  // namespace

bool isUriReference(std::string_view text) {
  auto beforeFragment = cutUpTo('#', text);
  const auto fragment = text;
  auto hierarchy = cutUpTo('?', beforeFragment);
  const auto query = beforeFragment;
  if (!isMadeOf(fragment, kPath | QueryMark) || !isMadeOf(query, kPath | QueryMark)) return false;
  // The first segment of a relative path holds no colon: it would read as a scheme.
  if (hierarchy.find(':') < hierarchy.find('/') && !isScheme(cutUpTo(':', hierarchy))) return false;
  return isHierarchy(hierarchy);
}

}  // namespace leafund
