#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "platform/foundation/Unicode.h"
#include "tests/support/ProcessorTime.h"

namespace leafund {
namespace {

using namespace std::string_view_literals;

struct Pair {
  std::string_view a;
  std::string_view b;
};

void expectBothWays(const Pair& pair, bool equivalent) {
  EXPECT_EQ(canonicallyEquivalent(pair.a, pair.b), equivalent) << pair.a << " " << pair.b;
  EXPECT_EQ(canonicallyEquivalent(pair.b, pair.a), equivalent) << pair.b << " " << pair.a;
}

std::string repeated(std::string_view unit, int count) {
  std::string text;
  for (int at = 0; at < count; ++at) text += unit;
  return text;
}

TEST(CanonicalEquivalenceTest, TellsTheSameTextInOtherCompositions) {
  for (const Pair& pair : {
           Pair{"", ""},
           Pair{"secret", "secret"},
           Pair{"\u00E9", "e\u0301"},
           Pair{"caf\u00E9!", "cafe\u0301!"},
           Pair{"\u212B", "\u00C5"},  // The ångström sign.
           Pair{"\u212B", "A\u030A"},
           Pair{"\uAC01", "\u1100\u1161\u11A8"},  // A Hangul syllable.
           Pair{"\uAC01", "\uAC00\u11A8"},
           Pair{"q\u0301\u0323", "q\u0323\u0301"},  // Marks above and below, either first.
           Pair{"\u1EAD", "a\u0302\u0323"},
           Pair{"\u01D5", "U\u0308\u0304"},             // Decomposes in two steps.
           Pair{"\U0001D15E", "\U0001D157\U0001D165"},  // Outside the first 65,536.
           Pair{"\uF900", "\u8C48"},                    // A character of one, another one.
           Pair{"\u0344", "\u0308\u0301"},              // Nothing but marks.
           Pair{"\u00E9\0x"sv, "e\u0301\0x"sv},
       }) {
    expectBothWays(pair, true);
  }
}

TEST(CanonicalEquivalenceTest, TellsDifferentTextsApart) {
  for (const Pair& pair : {
           Pair{"", "a"},
           Pair{"abc", "abd"},
           Pair{"abc", "abcd"},
           Pair{"abc", "ABC"},
           Pair{"e", "\u00E9"},
           Pair{"\u00E9", "\u00E8"},
           Pair{"\u00FC\u0301", "u\u0301\u0308"},  // Two marks above: their order tells.
           Pair{"\uFB01", "fi"},                   // Compatibility only.
           Pair{"\uFF21", "A"},
           Pair{"\u00B2", "2"},
           Pair{"a", "a\u200B"},
           Pair{"a", "a "},
           Pair{"a"sv, "a\0"sv},
           Pair{"a\0b"sv, "a\0c"sv},
       }) {
    expectBothWays(pair, false);
  }
}

TEST(CanonicalEquivalenceTest, ABlockedMarkDoesNotMove) {
  // A letter between two marks keeps them on their own letters.
  expectBothWays({"a\u0301b\u0323", "a\u0323b\u0301"}, false);
}

TEST(CanonicalEquivalenceTest, ManyMarksOfOneKindKeepTheirOrder) {
  const std::string mixed = "a" + repeated("\u0301\u0316\u0300\u0316", 50);
  const std::string sorted = "a" + repeated("\u0316", 100) + repeated("\u0301\u0300", 50);
  const std::string swapped = "a" + repeated("\u0316", 100) + repeated("\u0300\u0301", 50);
  expectBothWays({mixed, sorted}, true);
  expectBothWays({mixed, swapped}, false);
}

TEST(CanonicalEquivalenceTest, BytesThatAreNotUtf8EqualOnlyThemselves) {
  EXPECT_TRUE(canonicallyEquivalent("a\xFF", "a\xFF"));
  expectBothWays({"a\xFF", "a\xFE"}, false);
  expectBothWays({"a\xFF", "a\uFFFD"}, false);
  expectBothWays({"\u00E9\xFF", "e\u0301\xFF"}, false);
  expectBothWays({"\xC3", "\u00E9"}, false);
  expectBothWays({"\xED\xA0\x80", "\xED\xB0\x80"}, false);
}

// Far above what a linear comparison needs, far below what a quadratic one takes.
class CanonicalEquivalenceOfLongTextsTest : public testing::Test {
 protected:
  void TearDown() override { EXPECT_LT(processorSeconds() - start_, 30); }

 private:
  double start_ = processorSeconds();
};

TEST_F(CanonicalEquivalenceOfLongTextsTest, LettersWithMarks) {
  EXPECT_TRUE(canonicallyEquivalent(repeated("\u00E9", 500'000), repeated("e\u0301", 500'000)));
  EXPECT_FALSE(
      canonicallyEquivalent(repeated("\u00E9", 500'000), repeated("e\u0301", 499'999) + "e"));
}

TEST_F(CanonicalEquivalenceOfLongTextsTest, OneLetterWithHalfAMillionMarks) {
  const std::string above = repeated("\u0301", 250'000);
  const std::string below = repeated("\u0316", 250'000);
  EXPECT_TRUE(canonicallyEquivalent("a" + above + below, "a" + below + above));
}

}  // namespace
}  // namespace leafund
