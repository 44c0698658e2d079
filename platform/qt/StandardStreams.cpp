#include "platform/qt/StandardStreams.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

namespace leafund {

void secureStandardStreams() {
  std::signal(SIGPIPE, SIG_IGN);
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    // The lowest free number is the one that open() gives.
    if (fcntl(stream, F_GETFD) == -1) static_cast<void>(open("/dev/null", O_RDWR));
  }
}

}  // namespace leafund
