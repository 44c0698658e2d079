#pragma once

#include <memory>
#include <string_view>

namespace leafund {

// A test of a text against a regular expression of the ICU dialect. Cheap to copy; a copy shares
// the compiled pattern, which never changes.
class NSPredicate {
 public:
  // The only format is "SELF MATCHES %@", with the pattern as its argument. Any other format is
  // fatal, and so is a pattern that is not UTF-8 or does not compile: both are written in the
  // program and never typed by a user.
  static NSPredicate predicateWithFormat(std::string_view format, std::string_view argument);

  // True when the pattern matches the WHOLE text; a trailing line feed counts as part of it. False
  // for a text that is not UTF-8: reading it with replacement characters would answer for another
  // text. False also when matching gives up at its limit on backtracking storage (8 MB, reached for
  // instance by a pattern of nested repeats over a text of some megabytes).
  bool evaluateWithObject(std::string_view text) const;

 private:
  struct Pattern;

  explicit NSPredicate(std::shared_ptr<const Pattern> pattern);

  std::shared_ptr<const Pattern> pattern_;
};

}  // namespace leafund
