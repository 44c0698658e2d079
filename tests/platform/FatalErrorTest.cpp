#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <string>

#include "platform/foundation/Diagnostics.h"
#include "platform/foundation/FatalError.h"

namespace leafund {
namespace {

TEST(FatalErrorTest, WritesOneLineWithPlaceAndReason) {
  EXPECT_DEATH(fatalError("ConfirmPageVC", "absent outlet"),
               "^Leafund stopped: ConfirmPageVC: absent outlet\n$");
}

TEST(FatalErrorTest, StopsByAbort) {
  EXPECT_EXIT(fatalError("here", "why"), testing::KilledBySignal(SIGABRT), "here: why");
}

TEST(FatalErrorTest, WritesALongReasonWhole) {
  const std::string reason(100'000, 'r');
  EXPECT_DEATH(fatalError("here", reason), "here: r{1000}.*r{1000}\n$");
}

TEST(FatalErrorTest, LosesNoDiagnosticLineWrittenBefore) {
  const auto writeAndStop = [] {
    // Standard output goes where the death test looks, through a pipe and so fully buffered.
    if (dup2(STDERR_FILENO, STDOUT_FILENO) < 0) std::_Exit(1);
    writeDiagnosticLine("the last words");
    fatalError("here", "why");
  };
  EXPECT_DEATH(writeAndStop(), "the last words\nLeafund stopped: here: why\n$");
}

}  // namespace
}  // namespace leafund
