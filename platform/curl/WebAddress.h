#pragma once

#include <optional>
#include <string>

#include "platform/curl/CurlLibrary.h"

namespace leafund {

// An http or https address that names a host, without a name, a password or a fragment: none of
// these is ever sent. By libcurl's reading, so within the life of the library.
class WebAddress {
 public:
  // Nothing for what is no such address, one with a port above 65,535 included.
  static std::optional<WebAddress> read(const CurlLibrary& curl, const std::string& text);

  // Where an answer to this address leads by its "Location", which is mended as browsers mend it:
  // slashes for backslashes, and escaped what no address may hold. Nothing when it leads to no
  // address that can be fetched.
  std::optional<WebAddress> target(const CurlLibrary& curl, const std::string& location) const;

  const std::string& text() const { return text_; }
  // The scheme, the host in lower case and the port.
  const std::string& origin() const { return origin_; }

 private:
  WebAddress() = default;
  static std::optional<WebAddress> resolved(const CurlLibrary& curl, const char* base,
                                            const std::string& reference);

  std::string text_;
  std::string origin_;
};

}  // namespace leafund
