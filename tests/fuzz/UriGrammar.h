#pragma once

#include <string_view>

namespace leafund::fuzz {

// Whether the text is a URI-reference, by the grammar of RFC 3986, appendix A.
bool isUriReference(std::string_view text);

// Whether the text is an IPv6address of the same grammar.
bool isIpv6Address(std::string_view text);

}  // namespace leafund::fuzz
