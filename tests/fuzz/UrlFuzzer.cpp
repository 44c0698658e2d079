#include <algorithm>

#include "platform/foundation/NSURL.h"
#include "tests/fuzz/Fuzzers.h"
#include "tests/fuzz/Promise.h"
#include "tests/support/UriJudge.h"

namespace leafund::fuzz {

void url(std::string_view input) {
  const auto address = NSURL::initWithString(input);
  promised(address.has_value() == (!input.empty() && judgedUriReference(input)),
           "an address is what uriparser takes for a reference, and is not empty");
  if (!address) return;
  const std::string& kept = address->absoluteString();
  promised(kept == input, "an address is kept as it was typed");
  promised(std::all_of(kept.begin(), kept.end(), [](char c) { return c > ' ' && c < '\x7F'; }),
           "an address is visible ASCII alone");
  const auto again = NSURL::initWithString(kept);
  promised(again && again->absoluteString() == kept, "an address is an address again");
}

}  // namespace leafund::fuzz
