#include <gtest/gtest.h>

#include <cctype>
#include <cmath>
#include <cstdlib>

#include "platform/foundation/NSURL.h"
#include "platform/foundation/Unicode.h"
#include "screens/accounts/SignUpVC.h"
#include "tests/random/ReferenceRules.h"
#include "tests/random/Sheet.h"
#include "tests/random/TypedTexts.h"
#include "tests/support/AmountTexts.h"

// The reference's own rules, held to what they must answer: an opinion that is wrong in the same
// way as the application would not be a second one.
namespace leafund::random {
namespace {

TEST(ReferenceRulesTest, AmountsAreReadAsTheTableSays) {
  for (const auto& [text, amount] : amountTexts()) {
    const auto spelled = spelledAmount(text);
    ASSERT_EQ(spelled.has_value(), amount.has_value()) << text.substr(0, 40);
    EXPECT_TRUE(!amount || sameAmount(*spelled, *amount)) << text.substr(0, 40);
  }
}

// strtof in the "C" locale, which a test process is in from its start.
TEST(ReferenceRulesTest, AmountsDrawnByLotAreReadAsStrtofReadsThem) {
  Chance chance(11);
  for (int at = 0; at < 50'000; ++at) {
    const std::string text = amountText(chance, 80);
    char* end = nullptr;
    const float read = std::strtof(text.c_str(), &end);
    const bool whole = end != text.c_str() && end == text.c_str() + text.size() &&
                       std::isspace(static_cast<unsigned char>(text.front())) == 0;
    const auto spelled = spelledAmount(text);
    ASSERT_EQ(spelled.has_value(), whole) << readable(text);
    if (whole) {
      ASSERT_TRUE(sameAmount(*spelled, read)) << readable(text);
      ASSERT_EQ(std::signbit(*spelled), std::signbit(read)) << readable(text);
    }
  }
}

TEST(ReferenceRulesTest, DollarsHaveTwoDecimals) {
  EXPECT_EQ(dollars(50), "$50.00");
  EXPECT_EQ(dollars(-0.005F), "$-0.00");
  EXPECT_EQ(dollars(16777216), "$16777216.00");
}

TEST(ReferenceRulesTest, AddressesDrawnByLotAreJudgedAsTheParserJudgesThem) {
  Chance chance(12);
  for (int at = 0; at < 50'000; ++at) {
    const std::string text = addressText(chance);
    ASSERT_EQ(isAddress(text), NSURL::initWithString(text).has_value()) << readable(text);
  }
}

TEST(ReferenceRulesTest, EmailsDrawnByLotAreJudgedAsTheFormJudgesThem) {
  const auto form = std::make_shared<SignUpVC>();
  Chance chance(13);
  for (int at = 0; at < 20'000; ++at) {
    const std::string text = emailText(chance);
    ASSERT_EQ(looksLikeEmail(text), form->isValidEmail(text)) << readable(text);
  }
}

TEST(ReferenceRulesTest, PasswordsDrawnByLotAreComparedAsUnicodeComparesThem) {
  Chance chance(14);
  int alike = 0;
  for (int at = 0; at < 50'000; ++at) {
    const std::string one = passwordText(chance), other = passwordText(chance);
    ASSERT_EQ(sameToAReader(one, other), canonicallyEquivalent(one, other))
        << readable(one) << " and " << readable(other);
    if (one != other && sameToAReader(one, other)) ++alike;
  }
  EXPECT_GT(alike, 100);
}

}  // namespace
}  // namespace leafund::random
