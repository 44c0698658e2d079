#include <algorithm>
#include <cstddef>

#include "platform/foundation/NSPredicate.h"
#include "screens/accounts/SignUpVC.h"
#include "tests/fuzz/Fuzzers.h"
#include "tests/fuzz/Promise.h"

namespace leafund::fuzz {

namespace {

constexpr std::size_t longestLabel = 63;

bool isLetterOrDigit(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

bool isLocalPart(std::string_view text) {
  constexpr std::string_view others = ".!#$%&'*+/=?^_`{|}~-";
  return !text.empty() && std::all_of(text.begin(), text.end(), [=](char c) {
    return isLetterOrDigit(c) || others.find(c) != std::string_view::npos;
  });
}

bool isLabel(std::string_view text) {
  return !text.empty() && text.size() <= longestLabel && isLetterOrDigit(text.front()) &&
         isLetterOrDigit(text.back()) && std::all_of(text.begin(), text.end(), [](char c) {
           return isLetterOrDigit(c) || c == '-';
         });
}

// What the pattern says, read by hand. There is one way to read it: the local part holds no at sign
// and a label no dot.
bool isAddress(std::string_view text) {
  const std::size_t at = text.find('@');
  if (at == std::string_view::npos || !isLocalPart(text.substr(0, at))) return false;
  for (text.remove_prefix(at + 1);;) {
    const std::size_t dot = text.find('.');
    if (!isLabel(text.substr(0, dot))) return false;
    if (dot == std::string_view::npos) return true;
    text.remove_prefix(dot + 1);
  }
}

// The form makes its predicate anew at every question, which is most of the time that one takes: it
// is asked now and then, and a predicate that stays answers always.
constexpr std::size_t formIsAskedEvery = 8;

constexpr std::string_view pattern =
    R"(^[a-zA-Z0-9.!#$%&'*+/=?^_`{|}~-]+@[a-zA-Z0-9](?:[a-zA-Z0-9-]{0,61}[a-zA-Z0-9])?)"
    R"((?:\.[a-zA-Z0-9](?:[a-zA-Z0-9-]{0,61}[a-zA-Z0-9])?)*$)";

}  // namespace

void email(std::string_view input) {
  static const NSPredicate predicate = NSPredicate::predicateWithFormat("SELF MATCHES %@", pattern);
  const bool expected = isAddress(input);
  promised(predicate.evaluateWithObject(input) == expected,
           "the predicate matches whole addresses and nothing else");
  if (input.size() % formIsAskedEvery != 0) return;
  static const SignUpVC form;
  promised(form.isValidEmail(input) == expected, "the form knows an address as the pattern does");
}

}  // namespace leafund::fuzz
