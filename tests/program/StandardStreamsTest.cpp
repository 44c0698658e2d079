#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

#include "platform/foundation/Diagnostics.h"
#include "platform/qt/StandardStreams.h"

namespace leafund {
namespace {

// In a process of its own, which ends with 7 when all is well.
void writeToNobody() {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) std::exit(1);
  dup2(ends[1], STDOUT_FILENO);
  close(ends[0]);
  close(ends[1]);
  secureStandardStreams();
  writeDiagnosticLine("to nobody");
  std::exit(7);
}

void openWithoutStandardStreams() {
  close(STDIN_FILENO);
  close(STDOUT_FILENO);
  secureStandardStreams();
  const int next = open("/dev/zero", O_RDWR);
  writeDiagnosticLine("to nowhere");
  std::exit(next > STDERR_FILENO ? 7 : 1);
}

TEST(StandardStreamsTest, AReaderThatHasGoneEndsNoProcess) {
  EXPECT_EXIT(writeToNobody(), testing::ExitedWithCode(7), "");
}

TEST(StandardStreamsTest, AStreamThatWasClosedIsNotTakenByWhatOpensNext) {
  EXPECT_EXIT(openWithoutStandardStreams(), testing::ExitedWithCode(7), "");
}

}  // namespace
}  // namespace leafund
