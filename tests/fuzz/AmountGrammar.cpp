#include "tests/fuzz/AmountGrammar.h"

#include <algorithm>
#include <cstddef>

namespace leafund::fuzz {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool isHexDigit(char c) { return isDigit(c) || (lower(c) >= 'a' && lower(c) <= 'f'); }

bool isWordCharacter(char c) {
  return isDigit(c) || (lower(c) >= 'a' && lower(c) <= 'z') || c == '_';
}

bool takeSign(std::string_view& text) {
  const bool signedText = text.starts_with('+') || text.starts_with('-');
  if (signedText) text.remove_prefix(1);
  return signedText;
}

// `word` is in lower case.
bool takeWord(std::string_view& text, std::string_view word) {
  if (text.size() < word.size()) return false;
  if (!std::equal(word.begin(), word.end(), text.begin(),
                  [](char wanted, char typed) { return wanted == lower(typed); })) {
    return false;
  }
  text.remove_prefix(word.size());
  return true;
}

std::size_t takeDigits(std::string_view& text, bool (*belongs)(char)) {
  const auto end = std::find_if_not(text.begin(), text.end(), belongs);
  const auto count = static_cast<std::size_t>(end - text.begin());
  text.remove_prefix(count);
  return count;
}

// What follows the letter of an exponent.
bool isExponent(std::string_view text) {
  takeSign(text);
  return takeDigits(text, isDigit) > 0 && text.empty();
}

bool isNumber(std::string_view text, bool (*belongs)(char), char exponentLetter) {
  std::size_t digits = takeDigits(text, belongs);
  if (text.starts_with('.')) {
    text.remove_prefix(1);
    digits += takeDigits(text, belongs);
  }
  if (digits == 0) return false;
  return text.empty() || (lower(text.front()) == exponentLetter && isExponent(text.substr(1)));
}

// What follows "nan": nothing, or word characters between parentheses.
bool isPayload(std::string_view text) {
  if (text.empty()) return true;
  if (text.size() < 2 || text.front() != '(' || text.back() != ')') return false;
  return std::all_of(text.begin() + 1, text.end() - 1, isWordCharacter);
}

}  // namespace

bool isAmount(std::string_view text) {
  takeSign(text);
  if (takeWord(text, "nan")) return isPayload(text);
  if (takeWord(text, "inf")) return text.empty() || (takeWord(text, "inity") && text.empty());
  if (takeWord(text, "0x")) return isNumber(text, isHexDigit, 'p');
  return isNumber(text, isDigit, 'e');
}

}  // namespace leafund::fuzz
