#include "platform/foundation/Diagnostics.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <limits>

namespace leafund {

void writeDiagnosticLine(std::string_view line) {
  std::string whole{line};
  whole += '\n';
  // Through the C stream and not past it, so that the line keeps its place among other output.
  std::fwrite(whole.data(), 1, whole.size(), stdout);
  std::fflush(stdout);
}

void secureStandardStreams() {
  std::signal(SIGPIPE, SIG_IGN);
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    // The lowest free number is the one that open() gives.
    if (fcntl(stream, F_GETFD) == -1) static_cast<void>(open("/dev/null", O_RDWR));
  }
}

std::string decimalText(std::ptrdiff_t number) {
  // Its digits10 leaves out the last, partly used digit; the sign takes one more.
  std::array<char, std::numeric_limits<std::ptrdiff_t>::digits10 + 2> digits{};
  const auto end = std::to_chars(digits.begin(), digits.end(), number).ptr;
  return {digits.begin(), end};
}

std::string positionText(std::optional<std::ptrdiff_t> position) {
  return position ? decimalText(*position) : "nil";
}

}  // namespace leafund
