#pragma once

#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace leafund {

// What a user may type for an amount, and what either screen that takes one reads in it.
struct AmountText {
  std::string text;
  std::optional<float> amount;
};

inline std::vector<AmountText> amountTexts() {
  using namespace std::string_literals;
  constexpr float infinite = std::numeric_limits<float>::infinity();
  const float notANumber = std::nanf("");
  return {{"25", 25},
          {"25.50", 25.5F},
          {"-3", -3},
          {"1e3", 1000},
          {".5", 0.5F},
          {"+5", 5},
          {"0x1p3", 8},
          {"inf", infinite},
          {"nan", notANumber},
          {"nan(1)", notANumber},
          {"1e400", infinite},
          {"1e-50", 0},
          {"", {}},
          {" 25", {}},
          {"25 ", {}},
          {"$25", {}},
          {"25,00", {}},
          {"twenty", {}},
          {"12\0"s, {}},
          {"\uFF11\uFF12", {}},
          {std::string(10'000, '9'), infinite}};
}

inline bool sameAmount(float one, float other) {
  return one == other || (std::isnan(one) && std::isnan(other));
}

}  // namespace leafund
