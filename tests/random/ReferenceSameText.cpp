#include <algorithm>
#include <optional>
#include <utility>

#include "tests/random/ReferenceRules.h"

namespace leafund::random {

namespace {

struct Parts {
  char32_t whole;
  std::u32string_view parts;
};

// Full canonical decompositions, from the Unicode Character Database.
constexpr Parts kParts[] = {{U'\u00C5', U"A\u030A"},
                            {U'\u00E9', U"e\u0301"},
                            {U'\u00EA', U"e\u0302"},
                            {U'\u00F1', U"n\u0303"},
                            {U'\u00FC', U"u\u0308"},
                            {U'\u01D6', U"u\u0308\u0304"},
                            {U'\u1EB9', U"e\u0323"},
                            {U'\u1EC7', U"e\u0323\u0302"},
                            {U'\u1E69', U"s\u0323\u0307"},
                            {U'\u2126', U"\u03A9"},
                            {U'\u212A', U"K"},
                            {U'\u212B', U"A\u030A"},
                            {U'\u0344', U"\u0308\u0301"}};

// Canonical combining classes of the marks among them; 0 is no mark.
int markClass(char32_t point) {
  switch (point) {
    case U'\u0301':
    case U'\u0302':
    case U'\u0303':
    case U'\u0304':
    case U'\u0307':
    case U'\u0308':
    case U'\u030A':
      return 230;
    case U'\u0323':
      return 220;
    case U'\u0327':
      return 202;
    default:
      return 0;
  }
}

// The bytes of a character that begins so; 0 where none does.
std::size_t lengthFrom(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead < 0xC2 || lead > 0xF4) return 0;
  if (lead < 0xE0) return 2;
  return lead < 0xF0 ? 3 : 4;
}

// Well-formed UTF-8 alone: no long forms, no surrogates, nothing beyond U+10FFFF.
std::optional<std::u32string> points(std::string_view text) {
  std::u32string found;
  for (std::size_t at = 0; at < text.size();) {
    const auto lead = static_cast<unsigned char>(text[at]);
    const std::size_t length = lengthFrom(lead);
    if (length == 0 || at + length > text.size()) return std::nullopt;
    char32_t point = length == 1 ? lead : lead & (0xFFU >> (length + 1));
    for (std::size_t next = 1; next < length; ++next) {
      const auto trail = static_cast<unsigned char>(text[at + next]);
      if ((trail & 0xC0) != 0x80) return std::nullopt;
      point = (point << 6) | (trail & 0x3F);
    }
    const bool tooLong = (length == 3 && point < 0x800) || (length == 4 && point < 0x10000);
    if (tooLong || point > 0x10FFFF || (point >= 0xD800 && point < 0xE000)) return std::nullopt;
    found += point;
    at += length;
  }
  return found;
}

// A Hangul syllable is its jamo, by arithmetic.
void takeApart(char32_t point, std::u32string& into) {
  if (point >= 0xAC00 && point <= 0xD7A3) {
    const char32_t index = point - 0xAC00;
    into += 0x1100 + index / (21 * 28);
    into += 0x1161 + index / 28 % 21;
    if (index % 28 != 0) into += 0x11A7 + index % 28;
    return;
  }
  for (const auto& each : kParts) {
    if (each.whole != point) continue;
    into += each.parts;
    return;
  }
  into += point;
}

std::u32string apart(const std::u32string& whole) {
  std::u32string parts;
  for (const char32_t point : whole) takeApart(point, parts);
  // Neighbouring marks change places until their classes ascend.
  for (bool moved = true; std::exchange(moved, false);) {
    for (std::size_t at = 1; at < parts.size(); ++at) {
      const int here = markClass(parts[at]);
      if (here == 0 || markClass(parts[at - 1]) <= here) continue;
      std::swap(parts[at - 1], parts[at]);
      moved = true;
    }
  }
  return parts;
}

}  // namespace

bool sameToAReader(std::string_view one, std::string_view other) {
  if (one == other) return true;
  const auto first = points(one);
  const auto second = points(other);
  return first && second && apart(*first) == apart(*second);
}

}  // namespace leafund::random
