#include <gtest/gtest.h>

#include "platform/foundation/NSURLRequest.h"

namespace leafund {
namespace {

TEST(NSURLRequestTest, AsksForTheAddressItWasMadeWith) {
  const auto url = NSURL::initWithString("http://example.org/a%20b?c");
  ASSERT_TRUE(url);
  const NSURLRequest request = NSURLRequest::initWithURL(*url);
  EXPECT_EQ(request.URL().absoluteString(), "http://example.org/a%20b?c");
}

}  // namespace
}  // namespace leafund
