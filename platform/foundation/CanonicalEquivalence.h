#pragma once

#include <string_view>

namespace leafund {

// Whether two UTF-8 texts are the same text to a reader: equal byte for byte, or canonically
// equivalent by Unicode (UAX #15), as "é" in one character is to "e" and a combining accent. When
// either is not UTF-8, only the bytes count. Case, and compatibility forms such as full-width
// letters, are told apart. Takes time in proportion to the length, times the logarithm of the
// longest run of combining marks.
bool canonicallyEquivalent(std::string_view a, std::string_view b);

}  // namespace leafund
