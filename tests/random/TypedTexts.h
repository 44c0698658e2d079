#pragma once

#include <string>
#include <string_view>

#include "tests/random/Chance.h"

// What a user may type, from the plain to the hostile.
namespace leafund::random {

// At most so many of the letters, each drawn by itself.
std::string drawnFrom(Chance& chance, std::string_view letters, std::size_t most);
std::string anyText(Chance& chance);
// Not empty, and short enough to be many.
std::string plainText(Chance& chance);
// Around `remaining` dollars more often than elsewhere.
std::string amountText(Chance& chance, float remaining);
std::string emailText(Chance& chance);
// One of few, so that two of them are often the same to a reader.
std::string passwordText(Chance& chance);
// A picture's address, or what only looks like one.
std::string addressText(Chance& chance);

}  // namespace leafund::random
