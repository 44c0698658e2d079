#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace leafund::fuzz {

// Ends the process, with one line that says which promise was broken. Not an assertion of a test,
// because a fuzzer notices nothing but the end of the process.
inline void promised(bool kept, std::string_view promise) {
  if (kept) return;
  std::fprintf(stderr, "Broken promise: %.*s\n", static_cast<int>(promise.size()), promise.data());
  std::abort();
}

}  // namespace leafund::fuzz
