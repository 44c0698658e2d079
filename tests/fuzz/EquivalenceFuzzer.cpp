#include <unicode/normalizer2.h>
#include <unicode/unistr.h>
#include <unicode/ustring.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/foundation/Unicode.h"
#include "tests/fuzz/Fuzzers.h"
#include "tests/fuzz/Promise.h"

namespace leafund::fuzz {

namespace {

// Nothing for bytes that are not UTF-8.
std::optional<icu::UnicodeString> utf16(std::string_view bytes) {
  std::vector<char16_t> units(bytes.size() + 1);
  std::int32_t length = 0;
  UErrorCode status = U_ZERO_ERROR;
  u_strFromUTF8(units.data(), static_cast<std::int32_t>(units.size()), &length, bytes.data(),
                static_cast<std::int32_t>(bytes.size()), &status);
  if (U_FAILURE(status)) return std::nullopt;
  return icu::UnicodeString{units.data(), length};
}

enum class Form { Composed, Decomposed };

// Written out by ICU itself, which the application does not ask to: it is slow on long texts.
icu::UnicodeString normalised(const icu::UnicodeString& text, Form form) {
  UErrorCode status = U_ZERO_ERROR;
  const auto* forms = form == Form::Composed ? icu::Normalizer2::getNFCInstance(status)
                                             : icu::Normalizer2::getNFDInstance(status);
  promised(U_SUCCESS(status), "Unicode's tables are there");
  icu::UnicodeString result = forms->normalize(text, status);
  promised(U_SUCCESS(status), "every text has a normal form");
  return result;
}

std::string utf8(const icu::UnicodeString& text) {
  std::string bytes;
  return text.toUTF8String(bytes);
}

bool areEquivalent(std::string_view one, std::string_view other) {
  if (one == other) return true;
  const auto first = utf16(one);
  const auto second = utf16(other);
  return first && second &&
         normalised(*first, Form::Decomposed) == normalised(*second, Form::Decomposed);
}

// Whatever a text can be rewritten to by the standard means the same as it.
void meansTheSameInEveryForm(std::string_view text) {
  const auto units = utf16(text);
  if (!units) return;
  for (const Form form : {Form::Composed, Form::Decomposed}) {
    promised(canonicallyEquivalent(text, utf8(normalised(*units, form))),
             "a text is equivalent to its normal forms");
  }
}

}  // namespace

void equivalence(std::string_view input) {
  const std::size_t split = input.find('\xFF');
  const std::string_view one = input.substr(0, split);
  const auto other = split == std::string_view::npos ? one : input.substr(split + 1);
  const bool equivalent = canonicallyEquivalent(one, other);
  promised(equivalent == areEquivalent(one, other), "texts are equivalent that decompose alike");
  promised(equivalent == canonicallyEquivalent(other, one), "equivalence goes both ways");
  meansTheSameInEveryForm(one);
  meansTheSameInEveryForm(other);
}

}  // namespace leafund::fuzz
