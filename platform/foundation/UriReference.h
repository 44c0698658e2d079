#pragma once

#include <string_view>

namespace leafund {

// Whether the text is a URI-reference, by the grammar of RFC 3986, appendix A. The empty text is
// one. Takes time in proportion to the length, and no memory.
bool isUriReference(std::string_view text);

}  // namespace leafund
