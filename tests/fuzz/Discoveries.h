#pragma once

namespace leafund::fuzz {

constexpr unsigned kindsOfDiscovery = 1024;

// Tells the fuzzer that an input led somewhere of that number, modulo kindsOfDiscovery. Libraries
// that are not built for fuzzing tell nothing themselves: what comes out of them has to do.
void discovered(unsigned kind);

}  // namespace leafund::fuzz
