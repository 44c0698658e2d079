#include <locale.h>

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>
#include <system_error>

#include "platform/foundation/AmountText.h"
#include "tests/fuzz/AmountGrammar.h"
#include "tests/fuzz/Fuzzers.h"
#include "tests/fuzz/Promise.h"
#include "tests/platform/CommaLocale.h"

namespace leafund::fuzz {

namespace {

locale_t cLocale() {
  static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
  return locale;
}

// What printf writes while the thread, whatever the process has, is in the "C" locale.
std::string printedInC(float amount) {
  const locale_t before = uselocale(cLocale());
  std::string text = CommaLocale::printed("$%.2f", static_cast<double>(amount));
  uselocale(before);
  return text;
}

bool sameValue(float one, float other) {
  if (std::isnan(one) || std::isnan(other)) return std::isnan(one) && std::isnan(other);
  return one == other;
}

// Outside the range of a float the reference only knows that it is outside; the wider type tells on
// which side.
bool isBeyondRange(float magnitude, const std::string& digits) {
  const bool large = strtold_l(digits.c_str(), nullptr, cLocale()) > 1;
  return large ? std::isinf(magnitude) : magnitude <= std::numeric_limits<float>::min();
}

// std::from_chars shares no code with strtof, and knows no locale.
bool agreesWithFromChars(float amount, std::string_view text) {
  const bool negative = text.front() == '-';
  if (std::signbit(amount) != negative) return false;
  if (negative || text.front() == '+') text.remove_prefix(1);
  const bool hexadecimal = text.size() > 1 && (text[1] == 'x' || text[1] == 'X');
  const std::string_view digits = hexadecimal ? text.substr(2) : text;
  float expected = 0;
  const auto [end, error] =
      std::from_chars(digits.data(), digits.data() + digits.size(), expected,
                      hexadecimal ? std::chars_format::hex : std::chars_format::general);
  if (end != digits.data() + digits.size()) return false;
  const float magnitude = std::copysign(amount, 1.0F);
  if (error == std::errc::result_out_of_range) return isBeyondRange(magnitude, std::string{text});
  return error == std::errc{} && sameValue(magnitude, expected);
}

void reads(std::string_view text) {
  const auto amount = amountFromText(text);
  promised(amount.has_value() == isAmount(text), "only what strtof reads whole is an amount");
  if (!amount) return;
  promised(agreesWithFromChars(*amount, text), "an amount has the value that its text says");
  promised(dollarText(*amount) == printedInC(*amount), "an amount is shown as printf shows it");
}

void shows(std::string_view bytes) {
  std::uint32_t bits = 0;
  if (bytes.size() < sizeof bits) return;
  std::memcpy(&bits, bytes.data(), sizeof bits);
  const auto amount = std::bit_cast<float>(bits);
  const std::string text = dollarText(amount);
  promised(text == printedInC(amount), "every float is shown as printf shows it");
  const auto back = amountFromText(std::string_view{text}.substr(1));
  promised(back.has_value(), "what is shown can be typed");
  promised(std::isnan(amount) ? std::isnan(*back) : dollarText(*back) == text,
           "what is shown and typed again is shown alike");
}

}  // namespace

void amount(std::string_view input) {
  static const CommaLocale locale;
  promised(locale.set(), locale.whyNot());
  reads(input);
  shows(input);
}

}  // namespace leafund::fuzz
