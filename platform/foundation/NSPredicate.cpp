#include "platform/foundation/NSPredicate.h"

#include "platform/foundation/FatalError.h"
#include "platform/foundation/Unicode.h"

namespace leafund {

NSPredicate NSPredicate::predicateWithFormat(std::string_view format, std::string_view argument) {
  if (format != "SELF MATCHES %@") {
    fatalError("NSPredicate", "format not supported: " + std::string{format});
  }
  if (!matchesWholeText(argument, "")) {
    fatalError("NSPredicate", "pattern does not compile: " + std::string{argument});
  }
  return NSPredicate{argument};
}

bool NSPredicate::evaluateWithObject(std::string_view text) const {
  return *matchesWholeText(pattern_, text);
}

}  // namespace leafund
