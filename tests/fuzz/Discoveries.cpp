#include "tests/fuzz/Discoveries.h"

#include <array>
#include <cstdint>

namespace leafund::fuzz {

namespace {

// libFuzzer reads this section beside its own counters, and clears it before every input.
[[gnu::section("__libfuzzer_extra_counters")]] std::array<std::uint8_t, kindsOfDiscovery> counters;

}  // namespace

void discovered(unsigned kind) { counters[kind % kindsOfDiscovery] = 1; }

}  // namespace leafund::fuzz
