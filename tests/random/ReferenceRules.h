#pragma once

#include <optional>
#include <string>
#include <string_view>

// The rules that texts are held to, written a second time and by other means than the
// application's own: no locale, no regular expressions, no URI parser, no Unicode library.
namespace leafund::random {

// The amount that a typed text spells, read whole as C's strtof reads it, or nothing. Blanks and
// anything beyond ASCII spell nothing.
std::optional<float> spelledAmount(std::string_view text);

// "$" and two decimals, rounded as printf rounds.
std::string dollars(float amount);

// local part, one at sign, labels of at most 63 letters, digits and inner hyphens joined by dots.
bool looksLikeEmail(std::string_view text);

// A URI reference by the grammar of RFC 3986, but not the empty one.
bool isAddress(std::string_view text);

// Canonically equivalent. Knows only the characters of the table in ReferenceSameText.cpp, which
// are those the generator types into passwords.
bool sameToAReader(std::string_view one, std::string_view other);

}  // namespace leafund::random
