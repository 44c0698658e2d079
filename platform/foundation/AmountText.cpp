#include "platform/foundation/AmountText.h"

#include <algorithm>
#include <array>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace leafund {

namespace {

// strtof and printf follow the locale of the process, and a graphical toolkit sets that at start:
// under de_DE they read and write "12,5".
std::string_view decimalPoint() { return std::localeconv()->decimal_point; }

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
  std::string typed{text};
  const std::string_view point = decimalPoint();
  if (point != ".") {
    if (typed.find(point) != std::string::npos) return std::nullopt;
    if (const auto dot = typed.find('.'); dot != std::string::npos) typed.replace(dot, 1, point);
  }
  char* end = nullptr;
  const float amount = std::strtof(typed.c_str(), &end);
  if (end != typed.c_str() + typed.size()) return std::nullopt;
  return amount;
}

std::string dollarText(float amount) {
  // The longest: "$-", the 39 digits of the largest float, the point, which may be some bytes long
  // in a locale, two decimals and a NUL.
  std::array<char, std::numeric_limits<float>::max_exponent10 + 1 + 16> printed{};
  std::snprintf(printed.data(), printed.size(), "$%.2f", static_cast<double>(amount));
  std::string text{printed.data()};
  if (!std::isfinite(amount)) return text;
  const std::size_t pointSize = decimalPoint().size();
  return text.replace(text.size() - 2 - pointSize, pointSize, ".");
}

}  // namespace leafund
