#pragma once

#include <string_view>

namespace leafund::fuzz {

// Whether strtof consumes the whole text in the "C" locale, by the grammar that ISO C gives for it,
// and without the white space that strtof would pass over first.
bool isAmount(std::string_view text);

}  // namespace leafund::fuzz
