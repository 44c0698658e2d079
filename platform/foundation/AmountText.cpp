#include "platform/foundation/AmountText.h"

#include <locale.h>
#include <stdlib.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace leafund {

namespace {

// Plain strtof follows the locale of the process, and a graphical toolkit sets that at start: under
// de_DE it reads "12.5" as 12. Never freed, so that it outlives every use.
locale_t cLocale() {
  static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
  return locale;
}

bool isWhiteSpaceOrNotAscii(char character) {
  constexpr std::string_view whiteSpace = " \t\n\v\f\r";
  return static_cast<unsigned char>(character) > 127 ||
         whiteSpace.find(character) != std::string_view::npos;
}

}  // namespace

std::optional<float> amountFromText(std::string_view text) {
  if (text.empty() || std::any_of(text.begin(), text.end(), isWhiteSpaceOrNotAscii)) {
    return std::nullopt;
  }
  // The copy ends in a NUL, as strtof wants it. A NUL inside the text stops strtof before the end.
  const std::string typed{text};
  char* end = nullptr;
  const float amount = strtof_l(typed.c_str(), &end, cLocale());
  if (end != typed.c_str() + typed.size()) return std::nullopt;
  return amount;
}

std::string dollarText(float amount) {
  // The longest: "$-", the 39 digits of the largest float, the point and two decimals.
  std::array<char, std::numeric_limits<float>::max_exponent10 + 1 + 5> text{'$'};
  // As a double, which is how printf would be given it.
  const auto end = std::to_chars(text.begin() + 1, text.end(), static_cast<double>(amount),
                                 std::chars_format::fixed, 2)
                       .ptr;
  return {text.begin(), end};
}

}  // namespace leafund
