#include "platform/foundation/NSPredicate.h"

#include <unicode/regex.h>
#include <unicode/unistr.h>
#include <unicode/ustring.h>

#include <limits>
#include <optional>
#include <string>
#include <utility>

#include "platform/foundation/FatalError.h"

namespace leafund {

namespace {

// Nothing for a text that is not UTF-8, or too long for ICU, which counts in 32 bits.
std::optional<icu::UnicodeString> utf16From(std::string_view utf8) {
  // UTF-16 never needs more units than UTF-8 needs bytes.
  if (utf8.size() >= std::numeric_limits<int32_t>::max()) return std::nullopt;
  const auto size = static_cast<int32_t>(utf8.size());
  icu::UnicodeString text;
  char16_t* buffer = text.getBuffer(size);
  if (buffer == nullptr) return std::nullopt;
  int32_t units = 0;
  UErrorCode status = U_ZERO_ERROR;
  u_strFromUTF8(buffer, text.getCapacity(), &units, utf8.data(), size, &status);
  text.releaseBuffer(U_SUCCESS(status) ? units : 0);
  if (U_FAILURE(status)) return std::nullopt;
  return text;
}

}  // namespace

struct NSPredicate::Pattern {
  std::unique_ptr<icu::RegexPattern> compiled;
};

NSPredicate::NSPredicate(std::shared_ptr<const Pattern> pattern) : pattern_{std::move(pattern)} {}

NSPredicate NSPredicate::predicateWithFormat(std::string_view format, std::string_view argument) {
  if (format != "SELF MATCHES %@") {
    fatalError("NSPredicate", "format not supported: " + std::string{format});
  }
  const auto pattern = utf16From(argument);
  if (!pattern) fatalError("NSPredicate", "pattern is not UTF-8");
  UErrorCode status = U_ZERO_ERROR;
  std::unique_ptr<icu::RegexPattern> compiled{icu::RegexPattern::compile(*pattern, 0, status)};
  if (U_FAILURE(status)) {
    fatalError("NSPredicate", "pattern does not compile: " + std::string{argument});
  }
  return NSPredicate{std::make_shared<const Pattern>(Pattern{std::move(compiled)})};
}

bool NSPredicate::evaluateWithObject(std::string_view text) const {
  const auto subject = utf16From(text);
  if (!subject) return false;
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::RegexMatcher> matcher{pattern_->compiled->matcher(*subject, status)};
  if (U_FAILURE(status)) return false;
  const bool matches = matcher->matches(status);
  return U_SUCCESS(status) && matches;
}

}  // namespace leafund
