#include <cstddef>
#include <cstdint>

#include "tests/fuzz/Fuzzers.h"

// LEAFUND_FUZZER is the name of the one function that this fuzzer feeds.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  leafund::fuzz::LEAFUND_FUZZER({reinterpret_cast<const char*>(bytes), size});
  return 0;
}
