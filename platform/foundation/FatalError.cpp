#include "platform/foundation/FatalError.h"

#include <sys/uio.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

#ifdef LEAFUND_COVERAGE
extern "C" void __gcov_dump();
#endif

namespace leafund {

namespace {

iovec piece(std::string_view text) {
  // The interface of writev is shared with readv; writev itself never writes through the pointer.
  return {const_cast<char*>(text.data()), text.size()};
}

}  // namespace

void fatalError(std::string_view place, std::string_view reason) noexcept {
  const std::array<iovec, 5> line{piece("Leafund stopped: "), piece(place), piece(": "),
                                  piece(reason), piece("\n")};
  // One system call, so that the line stays whole among the output of other threads and processes.
  // Diagnostic lines need no flush here: each was written out when it was written.
  [[maybe_unused]] const ssize_t written =
      writev(STDERR_FILENO, line.data(), static_cast<int>(line.size()));
#ifdef LEAFUND_COVERAGE
  // abort() discards the counters of a coverage build, and with them every line that led here.
  __gcov_dump();
#endif
  std::abort();  // GCOVR_EXCL_LINE: it runs when the counters have been written
}

}  // namespace leafund
