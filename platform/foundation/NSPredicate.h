#pragma once

#include <string>
#include <string_view>

namespace leafund {

// A test of a text against a regular expression of the ICU dialect.
class NSPredicate {
 public:
  // The only format is "SELF MATCHES %@", with the pattern as its argument. Any other format is
  // fatal, and so is a pattern that is not UTF-8 or does not compile: both are written in the
  // program and never typed by a user.
  static NSPredicate predicateWithFormat(std::string_view format, std::string_view argument);

  // True when the pattern matches the whole text; matchesWholeText() says what counts as a match.
  bool evaluateWithObject(std::string_view text) const;

 private:
  explicit NSPredicate(std::string_view pattern) : pattern_{pattern} {}

  std::string pattern_;
};

}  // namespace leafund
