#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <map>
#include <string>

namespace leafund {
namespace {

using testing::AllOf;
using testing::ExitedWithCode;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;

// Becomes the program, in surroundings without a display but for what is set here.
[[noreturn]] void start(const std::map<std::string, std::string>& surroundings) {
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) unsetenv(name);
  for (const auto& [name, value] : surroundings) setenv(name.c_str(), value.c_str(), 1);
  execl(LEAFUND_PROGRAM, "leafund", nullptr);
  _exit(127);
}

// One line of ours and nothing else; what follows the colon is the platform's reason.
auto oneLineWith(const char* reason) {
  return AllOf(MatchesRegex("Leafund has no display to open its window on: [^\n]+\n"),
               HasSubstr(reason), Not(HasSubstr("Reinstalling")));
}

TEST(NoDisplayTest, WithoutAnyDisplayItSaysSoInOneLineAndEndsWith1) {
  EXPECT_EXIT(start({}), ExitedWithCode(1), oneLineWith("could not connect to display"));
}

TEST(NoDisplayTest, ADisplayThatNobodyServesIsNamed) {
  EXPECT_EXIT(start({{"DISPLAY", ":987"}}), ExitedWithCode(1),
              oneLineWith("could not connect to display :987"));
}

TEST(NoDisplayTest, APlatformThatDoesNotExistIsNamed) {
  EXPECT_EXIT(start({{"QT_QPA_PLATFORM", "paper"}}), ExitedWithCode(1), oneLineWith("\"paper\""));
}

TEST(NoDisplayTest, AWaylandScreenThatNobodyServesIsOneLineToo) {
  EXPECT_EXIT(start({{"QT_QPA_PLATFORM", "wayland"},
                     {"WAYLAND_DISPLAY", "nobody"},
                     {"XDG_RUNTIME_DIR", "/nowhere"}}),
              ExitedWithCode(1), oneLineWith(""));
}

TEST(NoDisplayTest, APlatformThatHasNoScreenIsOneLineToo) {
  EXPECT_EXIT(start({{"QT_QPA_PLATFORM", "linuxfb:fb=/nowhere"}, {"XDG_RUNTIME_DIR", "/nowhere"}}),
              ExitedWithCode(1), oneLineWith("there is no screen"));
}

}  // namespace
}  // namespace leafund
