#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace leafund {

// The bytes of a body, shared and never changed; a null pointer is no body.
using NSData = std::shared_ptr<const std::string>;

struct NSURLResponse {
  int statusCode = 0;
};

struct NSError {
  std::string reason;
};

// What is told the end of a fetch: a response and what body it has, or an error.
using CompletionHandler =
    std::function<void(NSData body, std::optional<NSURLResponse>, std::optional<NSError>)>;

}  // namespace leafund
