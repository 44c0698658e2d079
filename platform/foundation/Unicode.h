#pragma once

#include <optional>
#include <string_view>

// All that the toolkit needs of Unicode's tables, in one place: another library would be put behind
// these two functions.
namespace leafund {

// Whether two UTF-8 texts are the same text to a reader: equal byte for byte, or canonically
// equivalent by Unicode (UAX #15), as "é" in one character is to "e" and a combining accent. When
// either is not UTF-8, only the bytes count. Case, and compatibility forms such as full-width
// letters, are told apart. Takes time in proportion to the length, times the logarithm of the
// longest run of combining marks.
bool canonicallyEquivalent(std::string_view a, std::string_view b);

// Whether a regular expression of the ICU dialect matches the WHOLE text; a trailing line feed
// counts as part of it. Nothing for a pattern that is not UTF-8 or does not compile. False for a
// text that is not UTF-8: reading it with replacement characters would answer for another text.
// False also when matching gives up at its limit on backtracking storage (8 MB, reached for
// instance by a pattern of nested repeats over a text of some megabytes).
std::optional<bool> matchesWholeText(std::string_view pattern, std::string_view text);

}  // namespace leafund
