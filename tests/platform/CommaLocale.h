#pragma once

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace leafund {

// A locale that writes one and a half as "1,5" and groups digits, set for as long as this lives:
// the German one where it is installed, else one made on the spot by localedef, which needs nothing
// that is not part of every glibc system. A test that could not have it must say so and skip.
class CommaLocale {
 public:
  CommaLocale() {
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) make();
    set_ = printed("%.1f", 1.5) == "1,5";
    if (!set_ && whyNot_.empty()) whyNot_ = "the locale that was set has no decimal comma";
  }
  CommaLocale(const CommaLocale&) = delete;
  CommaLocale& operator=(const CommaLocale&) = delete;
  ~CommaLocale() {
    std::setlocale(LC_ALL, "C");
    std::error_code ignored;
    if (!folder_.empty()) std::filesystem::remove_all(folder_, ignored);
  }

  bool set() const { return set_; }
  const std::string& whyNot() const { return whyNot_; }

  // What printf writes in the locale of the process.
  static std::string printed(const char* format, double number) {
    char text[400];
    const int size = std::snprintf(text, sizeof text, format, number);
    return {text, static_cast<std::size_t>(size)};
  }

 private:
  void make() {
    std::string folder = (std::filesystem::temp_directory_path() / "comma-locale-XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr) {
      whyNot_ = "no temporary folder for a locale with a decimal comma";
      return;
    }
    folder_ = folder;
    std::ofstream{folder_ / "source"} << "comment_char %\nescape_char /\nLC_NUMERIC\n"
                                         "decimal_point \",\"\nthousands_sep \".\"\ngrouping 3;3\n"
                                         "END LC_NUMERIC\n";
    // It warns of the categories left out, and answers 1 for that.
    const std::string command = "localedef --no-archive -c -i '" + folder + "/source' '" + folder +
                                "/comma' >'" + folder + "/log' 2>&1";
    [[maybe_unused]] const int answer = std::system(command.c_str());
    setenv("LOCPATH", folder.c_str(), 1);
    if (std::setlocale(LC_NUMERIC, "comma") == nullptr) {
      whyNot_ = "no German locale is installed, and localedef made no locale with a decimal comma";
    }
    unsetenv("LOCPATH");
  }

  bool set_ = false;
  std::string whyNot_;
  std::filesystem::path folder_;
};

}  // namespace leafund
