#pragma once

#include <utility>

#include "platform/foundation/NSURL.h"

namespace leafund {

// A plain request for an address: GET, with no headers of its own, and the session's usual cache
// policy and time-out.
class NSURLRequest {
 public:
  static NSURLRequest initWithURL(NSURL url) { return NSURLRequest{std::move(url)}; }

  const NSURL& URL() const { return url_; }

 private:
  explicit NSURLRequest(NSURL url) : url_{std::move(url)} {}

  NSURL url_;
};

}  // namespace leafund
