#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "platform/foundation/NSPredicate.h"

namespace leafund {
namespace {

using namespace std::string_view_literals;

constexpr auto emailPattern =
    R"(^[a-zA-Z0-9.!#$%&'*+/=?^_`{|}~-]+@[a-zA-Z0-9](?:[a-zA-Z0-9-]{0,61}[a-zA-Z0-9])?)"
    R"((?:\.[a-zA-Z0-9](?:[a-zA-Z0-9-]{0,61}[a-zA-Z0-9])?)*$)"sv;

NSPredicate matches(std::string_view pattern) {
  return NSPredicate::predicateWithFormat("SELF MATCHES %@", pattern);
}

std::string repeated(std::string_view unit, int count) {
  std::string text;
  for (int at = 0; at < count; ++at) text += unit;
  return text;
}

TEST(NSPredicateTest, MatchesTheWholeTextAndNotAPart) {
  const NSPredicate predicate = matches("b+");
  EXPECT_TRUE(predicate.evaluateWithObject("bbb"));
  EXPECT_FALSE(predicate.evaluateWithObject("abbb"));
  EXPECT_FALSE(predicate.evaluateWithObject("bbba"));
  EXPECT_FALSE(predicate.evaluateWithObject(""));
}

TEST(NSPredicateTest, MatchesTheEmptyTextWhenThePatternDoes) {
  EXPECT_TRUE(matches("a*").evaluateWithObject(""));
  EXPECT_TRUE(matches("").evaluateWithObject(""));
  EXPECT_FALSE(matches("").evaluateWithObject("a"));
}

TEST(NSPredicateTest, TriesEveryAlternativeForTheWholeText) {
  EXPECT_TRUE(matches("a|ab").evaluateWithObject("ab"));
}

TEST(NSPredicateTest, CountsATrailingLineFeedAsPartOfTheText) {
  EXPECT_FALSE(matches("^a$").evaluateWithObject("a\n"));
  EXPECT_FALSE(matches("^a$").evaluateWithObject("a\r\n"));
}

TEST(NSPredicateTest, CountsCharactersAndNotBytes) {
  EXPECT_TRUE(matches(".").evaluateWithObject("é"));
  EXPECT_TRUE(matches(".").evaluateWithObject("🌱"));
  EXPECT_TRUE(matches("\\p{L}+").evaluateWithObject("Grün"));
  EXPECT_TRUE(matches("é🌱").evaluateWithObject("é🌱"));
}

TEST(NSPredicateTest, CountsANulAsACharacter) {
  EXPECT_FALSE(matches("a").evaluateWithObject("a\0"sv));
  EXPECT_TRUE(matches("a.").evaluateWithObject("a\0"sv));
}

TEST(NSPredicateTest, MatchesNoTextThatIsNotUtf8) {
  const NSPredicate anything = matches("(?s).*");
  ASSERT_TRUE(anything.evaluateWithObject("abc"));
  EXPECT_FALSE(anything.evaluateWithObject("a\xFF"));
  EXPECT_FALSE(anything.evaluateWithObject("\xC3"));
  EXPECT_FALSE(anything.evaluateWithObject("\xC0\x80"));      // An overlong NUL.
  EXPECT_FALSE(anything.evaluateWithObject("\xED\xA0\x80"));  // Half a surrogate pair.
}

TEST(NSPredicateTest, ACopyAnswersAlike) {
  const NSPredicate original = matches("a+");
  const NSPredicate copy = original;  // NOLINT(performance-unnecessary-copy-initialization)
  EXPECT_TRUE(copy.evaluateWithObject("aa"));
  EXPECT_TRUE(original.evaluateWithObject("aa"));
}

TEST(NSPredicateTest, AnswersNoWhenMatchingExceedsItsLimit) {
  const NSPredicate nested = matches("(?:a|b)*");
  ASSERT_TRUE(nested.evaluateWithObject(std::string(1000, 'a')));
  EXPECT_FALSE(nested.evaluateWithObject(std::string(5'000'000, 'a')));
}

TEST(NSPredicateTest, AnotherFormatIsFatal) {
  EXPECT_DEATH(NSPredicate::predicateWithFormat("SELF CONTAINS %@", "a"),
               "Leafund stopped: NSPredicate: format not supported: SELF CONTAINS %@\n$");
  EXPECT_DEATH(NSPredicate::predicateWithFormat("", "a"), "format not supported");
}

TEST(NSPredicateTest, APatternThatDoesNotCompileIsFatal) {
  EXPECT_DEATH(matches("(a"), "Leafund stopped: NSPredicate: pattern does not compile: \\(a\n$");
  EXPECT_DEATH(matches("a\xFF"), "Leafund stopped: NSPredicate: pattern does not compile: a");
}

TEST(NSPredicateTest, TheEmailPatternTakesAddresses) {
  const NSPredicate email = matches(emailPattern);
  for (const auto address : {"jane.doe@example.org"sv, "a@b"sv, "a@b.c.d.e"sv, "1@2.3"sv,
                             ".!#$%&'*+/=?^_`{|}~-@x"sv, "a..b@c"sv, "a@b-c.d--e"sv, "A@B.C"sv}) {
    EXPECT_TRUE(email.evaluateWithObject(address)) << address;
  }
}

TEST(NSPredicateTest, TheEmailPatternRefusesOtherTexts) {
  const NSPredicate email = matches(emailPattern);
  for (const auto text : {""sv,
                          "@"sv,
                          "@example.org"sv,
                          "jane"sv,
                          "jane@"sv,
                          "jane@a..b"sv,
                          "jane@.a"sv,
                          "jane@a."sv,
                          "jane@-a"sv,
                          "jane@a-"sv,
                          "jane@a.b-"sv,
                          "jane@a_b"sv,
                          "a@b@c"sv,
                          "jane doe@a.b"sv,
                          " jane@a.b"sv,
                          "jane@a.b "sv,
                          "jane@a .b"sv,
                          "jane@a.b\n"sv,
                          "jane@a.b\r\n"sv,
                          "jane@a.b\0"sv,
                          "\"jane\"@a.b"sv,
                          "a,b@c"sv,
                          "jané@a.b"sv,
                          "jane@é.b"sv,
                          "jane@ａ.b"sv,
                          "jane@a.b\xFF"sv}) {
    EXPECT_FALSE(email.evaluateWithObject(text)) << text;
  }
}

TEST(NSPredicateTest, TheEmailPatternTakesLabelsOfAtMost63Characters) {
  const NSPredicate email = matches(emailPattern);
  EXPECT_TRUE(email.evaluateWithObject("a@" + std::string(63, 'l')));
  EXPECT_FALSE(email.evaluateWithObject("a@" + std::string(64, 'l')));
  EXPECT_TRUE(email.evaluateWithObject("a@b." + std::string(63, 'l') + ".c"));
  EXPECT_FALSE(email.evaluateWithObject("a@b." + std::string(64, 'l') + ".c"));
}

TEST(NSPredicateTest, TheEmailPatternReadsLongTextsToTheirEnd) {
  const NSPredicate email = matches(emailPattern);
  const std::string longLocalPart(50'000, 'a');
  EXPECT_TRUE(email.evaluateWithObject(longLocalPart + "@b.c"));
  EXPECT_FALSE(email.evaluateWithObject(longLocalPart));
  const std::string manyLabels = "a@b" + repeated(".c", 100'000);
  EXPECT_TRUE(email.evaluateWithObject(manyLabels));
  EXPECT_FALSE(email.evaluateWithObject(manyLabels + "!"));
}

}  // namespace
}  // namespace leafund
