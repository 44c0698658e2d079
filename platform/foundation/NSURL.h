#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace leafund {

// An address, kept as it was given. Only NSURL::initWithString makes one.
class NSURL {
 public:
  // The address the text spells, or nothing when the text is empty or no URI reference by the
  // grammar of RFC 3986. A relative reference such as "foo" is one: it is the fetch that then
  // fails. Nothing is escaped, trimmed or normalised.
  static std::optional<NSURL> initWithString(std::string_view text);

  const std::string& absoluteString() const { return absoluteString_; }

 private:
  explicit NSURL(std::string_view text) : absoluteString_{text} {}

  std::string absoluteString_;
};

}  // namespace leafund
