#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "platform/foundation/AmountText.h"
#include "tests/platform/CommaLocale.h"

namespace leafund {
namespace {

using namespace std::string_view_literals;

constexpr float infinite = std::numeric_limits<float>::infinity();
const float notANumber = std::nanf("");

struct Reading {
  std::string text;
  std::optional<float> amount;
};

std::vector<Reading> readings() {
  std::vector<Reading> table{
      {"25", 25.0F},
      {"25.50", 25.5F},
      {"25.", 25.0F},
      {"-3", -3.0F},
      {"-10", -10.0F},
      {"0", 0.0F},
      {"-0", -0.0F},
      {"1e3", 1000.0F},
      {"1E+3", 1000.0F},
      {".5", 0.5F},
      {"+5", 5.0F},
      {"0x1p3", 8.0F},
      {"0X.8", 0.5F},
      {"007", 7.0F},
      {"16777217", 16777216.0F},
      {"0.1", 0.1F},
      {"inf", infinite},
      {"-inf", -infinite},
      {"infinity", infinite},
      {"INFINITY", infinite},
      {"nan", notANumber},
      {"NAN", notANumber},
      {"nan(1)", notANumber},
      {"1e400", infinite},
      {"-1e400", -infinite},
      {"1e-50", 0.0F},
      {"3.4028235e38", std::numeric_limits<float>::max()},
      {"1e-45", std::numeric_limits<float>::denorm_min()},
      {std::string(10'000, '9'), infinite},
      {"." + std::string(10'000, '0') + "1", 0.0F},
      {"", {}},
      {" ", {}},
      {" 25", {}},
      {"25 ", {}},
      {" 10", {}},
      {"2 5", {}},
      {"1 e3", {}},
      {"$25", {}},
      {"25,00", {}},
      {"1.000,50", {}},
      {"1,000", {}},
      {"twenty", {}},
      {"12a", {}},
      {"-", {}},
      {"+", {}},
      {".", {}},
      {"0x", {}},
      {"1e", {}},
      {"1e+", {}},
      {"--5", {}},
      {"+-5", {}},
      {"1.2.3", {}},
      {"nan(", {}},
      {"infin", {}},
      {std::string{"12\0"sv}, {}},
      {std::string{"\0"sv}, {}},
      {std::string{"1\0002"sv}, {}},
      {"１２", {}},      // Full-width digits.
      {"٢٥", {}},        // Arabic digits.
      {"25\u00A0", {}},  // A no-break space.
      {"25\xFF", {}},    // Not UTF-8.
      {"25\x80", {}},
      {"25\x7F", {}},
  };
  for (const char space : " \t\n\v\f\r"sv) {
    table.push_back({std::string{space} + "25", {}});
    table.push_back({std::string{"25"} + space, {}});
    table.push_back({std::string{"2"} + space + "5", {}});
    table.push_back({std::string{"nan("} + space + ")", {}});
  }
  return table;
}

void expectReadings() {
  for (const auto& [text, expected] : readings()) {
    const auto amount = amountFromText(text);
    const std::string shown = testing::PrintToString(text.substr(0, 40));
    ASSERT_EQ(amount.has_value(), expected.has_value()) << shown;
    if (!expected) continue;
    if (std::isnan(*expected)) {
      EXPECT_TRUE(std::isnan(*amount)) << shown;
    } else {
      EXPECT_EQ(*amount, *expected) << shown;
      EXPECT_EQ(std::signbit(*amount), std::signbit(*expected)) << shown;
    }
  }
}

struct Showing {
  float amount;
  std::string_view text;
};

const std::vector<Showing> showings{
    {50.0F, "$50.00"},
    {12.5F, "$12.50"},
    {0.0F, "$0.00"},
    {-0.0F, "$-0.00"},
    {-3.0F, "$-3.00"},
    {1234567.0F, "$1234567.00"},
    {0.125F, "$0.12"},  // A tie goes to the even digit.
    {0.375F, "$0.38"},
    {0.005F, "$0.00"},  // The nearest float is just below.
    {-0.001F, "$-0.00"},
    {0.995F, "$1.00"},  // And here just above.
    {0.1F, "$0.10"},
    {infinite, "$inf"},
    {-infinite, "$-inf"},
    {notANumber, "$nan"},
    {-notANumber, "$-nan"},
    {std::numeric_limits<float>::max(), "$340282346638528859811704183484516925440.00"},
    {std::numeric_limits<float>::lowest(), "$-340282346638528859811704183484516925440.00"},
    {std::numeric_limits<float>::denorm_min(), "$0.00"},
};

void expectShowings() {
  for (const auto& [amount, text] : showings) EXPECT_EQ(dollarText(amount), text);
}

TEST(AmountTextTest, ReadsWhatStrtofConsumesWholeAndNothingElse) { expectReadings(); }

TEST(AmountTextTest, ReadsTheSameInALocaleWithADecimalComma) {
  const CommaLocale locale;
  if (!locale.set()) GTEST_SKIP() << locale.whyNot();
  ASSERT_EQ(std::strtof("25,5", nullptr), 25.5F) << "the locale does not bite";
  expectReadings();
}

TEST(AmountTextTest, ReadsALongTextInReasonableTime) {
  EXPECT_EQ(amountFromText(std::string(10'000'000, '9')), infinite);
  EXPECT_EQ(amountFromText(std::string(10'000'000, '-')), std::nullopt);
}

TEST(AmountTextTest, ShowsTwoDecimalsBehindADollarSign) { expectShowings(); }

TEST(AmountTextTest, ShowsTheSameInALocaleWithADecimalComma) {
  const CommaLocale locale;
  if (!locale.set()) GTEST_SKIP() << locale.whyNot();
  ASSERT_EQ(CommaLocale::printed("%.2f", 12.5), "12,50") << "the locale does not bite";
  expectShowings();
}

// std::to_chars knows no locale, and writes as printf does in the "C" locale.
std::string inEveryLocale(float amount) {
  std::array<char, 64> text{'$'};
  const auto end = std::to_chars(text.data() + 1, text.data() + text.size(),
                                 static_cast<double>(amount), std::chars_format::fixed, 2)
                       .ptr;
  return {text.data(), end};
}

void expectRandomShowings() {
  std::mt19937 bits{20};
  for (int round = 0; round < 50'000; ++round) {
    const auto amount = std::bit_cast<float>(static_cast<std::uint32_t>(bits()));
    ASSERT_EQ(dollarText(amount), inEveryLocale(amount));
  }
  // Ties of all sizes: eighths up to where floats have none left.
  for (float eighths = 1; eighths < 1e8F; eighths = eighths * 3 + 2) {
    ASSERT_EQ(dollarText(eighths / 8), inEveryLocale(eighths / 8));
  }
}

TEST(AmountTextTest, ShowsEveryKindOfFloatAsPrintfDoes) { expectRandomShowings(); }

TEST(AmountTextTest, ShowsEveryKindOfFloatTheSameInALocaleWithADecimalComma) {
  const CommaLocale locale;
  if (!locale.set()) GTEST_SKIP() << locale.whyNot();
  expectRandomShowings();
}

}  // namespace
}  // namespace leafund
