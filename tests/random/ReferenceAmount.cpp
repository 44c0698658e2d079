#include <charconv>
#include <cstdio>
#include <limits>

#include "tests/random/ReferenceRules.h"

namespace leafund::random {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
bool isHexDigit(char c) { return isDigit(c) || (lower(c) >= 'a' && lower(c) <= 'f'); }

bool equalIgnoringCase(std::string_view text, std::string_view word) {
  if (text.size() != word.size()) return false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (lower(text[at]) != word[at]) return false;
  }
  return true;
}

// "nan", or "nan" and letters, digits and low lines in parentheses.
bool spellsNoNumber(std::string_view text) {
  if (text.size() < 3 || !equalIgnoringCase(text.substr(0, 3), "nan")) return false;
  text.remove_prefix(3);
  if (text.empty()) return true;
  if (text.size() < 2 || text.front() != '(' || text.back() != ')') return false;
  for (const char c : text.substr(1, text.size() - 2)) {
    if (!isDigit(c) && c != '_' && (lower(c) < 'a' || lower(c) > 'z')) return false;
  }
  return true;
}

// How far the digits reach, with at most one point among them.
struct Digits {
  std::size_t length = 0;
  bool any = false, zero = true;
};

Digits readDigits(std::string_view text, bool (*isOne)(char)) {
  Digits digits;
  bool point = false;
  for (; digits.length < text.size(); ++digits.length) {
    const char c = text[digits.length];
    if (c == '.' && !point) {
      point = true;
      continue;
    }
    if (!isOne(c)) break;
    digits.any = true;
    if (c != '0') digits.zero = false;
  }
  return digits;
}

// The place of the first digit that is not 0: digits before the point count up, zeros after it
// count down.
long leadingPlace(std::string_view mantissa) {
  const auto point = mantissa.find('.');
  const auto whole = mantissa.substr(0, point);
  const auto first = whole.find_first_not_of('0');
  if (first != std::string_view::npos) return static_cast<long>(whole.size() - first) - 1;
  if (point == std::string_view::npos) return 0;
  return -static_cast<long>(mantissa.substr(point + 1).find_first_not_of('0')) - 1;
}

struct Exponent {
  std::size_t length = 0;
  long value = 0;
};

// The marker, a sign and at least one digit; a number far out of range is told as one so.
Exponent readExponent(std::string_view text, char marker) {
  if (text.empty() || lower(text.front()) != marker) return {};
  std::size_t at = 1;
  const bool negative = at < text.size() && text[at] == '-';
  if (negative || (at < text.size() && text[at] == '+')) ++at;
  const std::size_t start = at;
  long value = 0;
  for (; at < text.size() && isDigit(text[at]); ++at) {
    if (value < 10'000'000) value = value * 10 + (text[at] - '0');
  }
  if (at == start) return {};
  return {at, negative ? -value : value};
}

// Exactly rounded by the library where it is in range; out of it, infinite or nothing.
float rounded(std::string_view mantissa, long power, bool hex) {
  std::string text;
  if (mantissa.front() == '.') text += '0';
  text += mantissa;
  text += hex ? 'p' : 'e';
  text += std::to_string(power);
  float value = 0;
  const auto format = hex ? std::chars_format::hex : std::chars_format::general;
  const auto answer = std::from_chars(text.data(), text.data() + text.size(), value, format);
  if (answer.ec != std::errc::result_out_of_range) return value;
  const bool large = leadingPlace(mantissa) * (hex ? 4 : 1) + power > 0;
  return large ? std::numeric_limits<float>::infinity() : 0.0F;
}

std::optional<float> spelledNumber(std::string_view text) {
  const bool hex = text.size() > 2 && text[0] == '0' && lower(text[1]) == 'x' &&
                   readDigits(text.substr(2), isHexDigit).any;
  if (hex) text.remove_prefix(2);
  const auto digits = readDigits(text, hex ? isHexDigit : isDigit);
  if (!digits.any) return std::nullopt;
  const auto exponent = readExponent(text.substr(digits.length), hex ? 'p' : 'e');
  if (digits.length + exponent.length != text.size()) return std::nullopt;
  if (digits.zero) return 0.0F;
  return rounded(text.substr(0, digits.length), exponent.value, hex);
}

}  // namespace

std::optional<float> spelledAmount(std::string_view text) {
  for (const char c : text) {
    if (static_cast<signed char>(c) < 0 || c == ' ' || (c >= '\t' && c <= '\r')) {
      return std::nullopt;
    }
  }
  const bool negative = !text.empty() && text.front() == '-';
  if (negative || (!text.empty() && text.front() == '+')) text.remove_prefix(1);
  std::optional<float> amount;
  if (equalIgnoringCase(text, "inf") || equalIgnoringCase(text, "infinity")) {
    amount = std::numeric_limits<float>::infinity();
  } else if (spellsNoNumber(text)) {
    amount = std::numeric_limits<float>::quiet_NaN();
  } else {
    amount = spelledNumber(text);
  }
  if (amount && negative) amount = -*amount;
  return amount;
}

std::string dollars(float amount) {
  char text[64];
  return {text, static_cast<std::size_t>(
                    std::snprintf(text, sizeof text, "$%.2f", static_cast<double>(amount)))};
}

}  // namespace leafund::random
