#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <limits>
#include <string>
#include <string_view>

#include "platform/foundation/Diagnostics.h"
#include "tests/platform/CommaLocale.h"

namespace leafund {
namespace {

using namespace std::string_view_literals;

// What standard output received while `write` ran.
template <class Write>
std::string outputOf(Write write) {
  testing::internal::CaptureStdout();
  write();
  return testing::internal::GetCapturedStdout();
}

TEST(DiagnosticsTest, WritesTheTextAndOneLineFeed) {
  EXPECT_EQ(outputOf([] { writeDiagnosticLine("3"); }), "3\n");
}

TEST(DiagnosticsTest, WritesAnEmptyTextAsAnEmptyLine) {
  EXPECT_EQ(outputOf([] { writeDiagnosticLine(""); }), "\n");
}

TEST(DiagnosticsTest, KeepsLinesInOrder) {
  EXPECT_EQ(outputOf([] {
              writeDiagnosticLine("first");
              writeDiagnosticLine("second");
            }),
            "first\nsecond\n");
}

TEST(DiagnosticsTest, WritesATextWithNulAndLineFeedsAsItIs) {
  EXPECT_EQ(outputOf([] { writeDiagnosticLine("a\0b\n\nc%s"sv); }), "a\0b\n\nc%s\n"sv);
}

TEST(DiagnosticsTest, WritesBytesThatAreNotUtf8AsTheyAre) {
  EXPECT_EQ(outputOf([] { writeDiagnosticLine("\xFF\xC3"); }), "\xFF\xC3\n");
}

TEST(DiagnosticsTest, HasWrittenTheLineOutWhenItReturns) {
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe(ends.data()), 0);
  std::fflush(stdout);
  const int kept = dup(STDOUT_FILENO);
  dup2(ends[1], STDOUT_FILENO);
  // A pipe's stream is fully buffered, so without a flush nothing would be there to read.
  setvbuf(stdout, nullptr, _IOFBF, BUFSIZ);
  writeDiagnosticLine("at once");
  fcntl(ends[0], F_SETFL, O_NONBLOCK);
  std::array<char, 64> got{};
  const ssize_t size = read(ends[0], got.data(), got.size());
  dup2(kept, STDOUT_FILENO);
  close(kept);
  close(ends[0]);
  close(ends[1]);
  ASSERT_GT(size, 0);
  EXPECT_EQ(std::string_view(got.data(), static_cast<std::size_t>(size)), "at once\n");
}

TEST(DiagnosticsTest, DecimalTextWritesTheWholeRange) {
  EXPECT_EQ(decimalText(0), "0");
  EXPECT_EQ(decimalText(1234567), "1234567");
  EXPECT_EQ(decimalText(-1), "-1");
  static_assert(sizeof(std::ptrdiff_t) == 8);
  EXPECT_EQ(decimalText(std::numeric_limits<std::ptrdiff_t>::max()), "9223372036854775807");
  EXPECT_EQ(decimalText(std::numeric_limits<std::ptrdiff_t>::min()), "-9223372036854775808");
}

TEST(DiagnosticsTest, DecimalTextDoesNotGroupDigitsInALocaleThatDoes) {
  const CommaLocale locale;
  if (!locale.set()) GTEST_SKIP() << locale.whyNot();
  EXPECT_EQ(decimalText(-1234567), "-1234567");
}

TEST(DiagnosticsTest, PositionTextTellsAnAbsentPosition) {
  EXPECT_EQ(positionText(std::nullopt), "nil");
  EXPECT_EQ(positionText(0), "0");
  EXPECT_EQ(positionText(-2), "-2");
}

}  // namespace
}  // namespace leafund
