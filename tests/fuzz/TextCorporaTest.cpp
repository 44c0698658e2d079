#include <gtest/gtest.h>

#include <algorithm>

#include "platform/foundation/AmountText.h"
#include "platform/foundation/NSURL.h"
#include "platform/foundation/Unicode.h"
#include "screens/accounts/SignUpVC.h"
#include "tests/fuzz/CorpusFiles.h"
#include "tests/fuzz/Fuzzers.h"
#include "tests/platform/CommaLocale.h"

namespace leafund {
namespace {

// A broken promise ends the process; the last line written before it names the input. Each corpus
// holds inputs of both answers, without which the promises would promise little.
void holdFor(const std::string& fuzzer, void (*promises)(std::string_view),
             bool (*answer)(std::string_view)) {
  int yes = 0;
  int no = 0;
  for (const auto& [name, bytes] : fuzz::corpus(fuzzer)) {
    std::fprintf(stderr, "%s\n", name.c_str());
    promises(bytes);
    ++(answer(bytes) ? yes : no);
  }
  EXPECT_GE(yes, 10);
  EXPECT_GE(no, 10);
}

TEST(TextCorporaTest, AmountsAreReadAndShownAsByTheCLibrary) {
  if (const CommaLocale locale; !locale.set()) GTEST_SKIP() << locale.whyNot();
  holdFor("amount", fuzz::amount,
          [](std::string_view text) { return amountFromText(text).has_value(); });
}

TEST(TextCorporaTest, AddressesAreTheReferencesOfTheGrammar) {
  holdFor("url", fuzz::url,
          [](std::string_view text) { return NSURL::initWithString(text).has_value(); });
}

TEST(TextCorporaTest, EmailAddressesAreWhatThePatternSays) {
  holdFor("email", fuzz::email,
          [](std::string_view text) { return SignUpVC().isValidEmail(text); });
}

TEST(TextCorporaTest, TextsThatDecomposeAlikeAreEquivalent) {
  holdFor("equivalence", fuzz::equivalence, [](std::string_view pair) {
    const std::size_t split = std::min(pair.find('\xFF'), pair.size() - 1);
    return canonicallyEquivalent(pair.substr(0, split), pair.substr(split + 1));
  });
}

}  // namespace
}  // namespace leafund
