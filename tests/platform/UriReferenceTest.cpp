#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <string_view>

#include "platform/foundation/UriReference.h"
#include "tests/support/UriJudge.h"

namespace leafund {
namespace {

using namespace std::string_view_literals;

// Texts near the edge of the grammar: pieces of addresses in any order, some of them damaged.
class UriTexts {
 public:
  explicit UriTexts(unsigned seed) : random_(seed) {}

  std::string next() {
    switch (below(4)) {
      case 0:
        return drawn("ab1:/?#[]@%2f.-v;= \x80"sv, 16);
      case 1:
        return "//[" + literal() + "]" + std::string(tail());
      case 2:
        return damaged(scheme() + "//" + user() + host() + std::string(tail()) + drawn(kPath, 12));
      default:
        return damaged(scheme() + drawn(kPath, 20));
    }
  }

 private:
  static constexpr std::string_view kPath = "a1/%4F.?#:@&";

  std::size_t below(std::size_t limit) { return random_() % limit; }

  std::string drawn(std::string_view letters, std::size_t longest) {
    std::string text(below(longest + 1), ' ');
    for (char& letter : text) letter = letters[below(letters.size())];
    return text;
  }

  std::string literal() {
    if (below(6) == 0) return "v" + drawn("1aV", 2) + drawn("..:a", 3);
    std::string text;
    for (auto groups = below(10); groups > 0; --groups) {
      text += drawn("0123456789abcdefF", below(8) == 0 ? 5 : 4);
      text += below(6) == 0 ? "::" : ":";
    }
    if (below(2) == 0) return text + octet() + "." + octet() + "." + octet() + "." + octet();
    return text + drawn("1aF:", 2);
  }

  std::string octet() { return below(10) == 0 ? drawn("0125", 3) : std::to_string(below(280)); }
  std::string scheme() { return below(3) == 0 ? drawn("ah1+-.", 4) + ":" : "http:"; }
  std::string user() { return below(3) == 0 ? drawn("ab:%20", 6) + "@" : ""; }
  std::string host() { return below(3) == 0 ? "[" + literal() + "]" : drawn("ab1.-%41", 8); }

  std::string_view tail() {
    constexpr std::array tails{""sv, "/"sv, ":80"sv, ":"sv, ":8a"sv, "?q"sv, "#f"sv, ":80/a?b#c"sv};
    return tails[below(tails.size())];
  }

  std::string damaged(std::string text) {
    if (below(4) != 0 || text.empty()) return text;
    text[below(text.size())] = "[]%#:/\0 @\xFF"[below(10)];
    return text;
  }

  std::mt19937 random_;
};

TEST(UriReferenceTest, AgreesWithAnIndependentParserOnGeneratedTexts) {
  UriTexts texts(3986);
  int taken = 0;
  constexpr int count = 100'000;
  for (int i = 0; i < count; ++i) {
    const auto text = texts.next();
    const bool is = isUriReference(text);
    ASSERT_EQ(is, judgedUriReference(text)) << testing::PrintToString(text);
    taken += is ? 1 : 0;
  }
  EXPECT_GT(taken, count / 10);
  EXPECT_LT(taken, count * 9 / 10);
}

TEST(UriReferenceTest, AgreesOnEveryShortText) {
  constexpr std::string_view letters = "a1:/?#[]@%.v \xFF";
  for (std::string text; text.size() <= 5;) {
    ASSERT_EQ(isUriReference(text), judgedUriReference(text)) << text;
    // Counts up, with the letters for digits.
    const auto last = text.find_last_not_of(letters.back());
    const bool full = last == std::string::npos;
    if (!full) text[last] = letters[letters.find(text[last]) + 1];
    std::fill(full ? text.begin() : text.begin() + static_cast<std::ptrdiff_t>(last) + 1,
              text.end(), letters.front());
    if (full) text += letters.front();
  }
}

}  // namespace
}  // namespace leafund
