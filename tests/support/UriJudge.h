#pragma once

#include <uriparser/Uri.h>

#include <string_view>

namespace leafund {

// Whether uriparser, which shares no code with ours, takes the text for a URI-reference.
inline bool judgedUriReference(std::string_view text) {
  UriUriA uri;
  const char* wrong = nullptr;
  if (uriParseSingleUriExA(&uri, text.data(), text.data() + text.size(), &wrong) != URI_SUCCESS) {
    return false;
  }
  uriFreeUriMembersA(&uri);
  return true;
}

}  // namespace leafund
