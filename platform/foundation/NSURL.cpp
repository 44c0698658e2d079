#include "platform/foundation/NSURL.h"

#include "platform/foundation/UriReference.h"

namespace leafund {

std::optional<NSURL> NSURL::initWithString(std::string_view text) {
  // By the grammar the empty text is a reference, to the document it stands in; here there is none.
  if (text.empty() || !isUriReference(text)) return std::nullopt;
  return NSURL{text};
}

}  // namespace leafund
