#include "tests/fuzz/NetworkFence.h"

#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstring>

namespace leafund::fuzz {

namespace {
std::atomic<int> onlyPort = 0;
}

void fenceIn(int port) { onlyPort = port; }

}  // namespace leafund::fuzz

// These two take the place of the C library's, also for the libraries that the program uses.

extern "C" int connect(int socket, const sockaddr* address, socklen_t length) {
  sockaddr_in inside{};
  const int port = leafund::fuzz::onlyPort;
  if (port != 0 && address->sa_family == AF_INET6) {
    errno = ECONNREFUSED;
    return -1;
  }
  if (port != 0 && address->sa_family == AF_INET && length >= sizeof inside) {
    std::memcpy(&inside, address, sizeof inside);
    if ((ntohl(inside.sin_addr.s_addr) >> 24U) != IN_LOOPBACKNET) {
      errno = ECONNREFUSED;
      return -1;
    }
    inside.sin_port = htons(static_cast<std::uint16_t>(port));
    address = reinterpret_cast<const sockaddr*>(&inside);
  }
  return static_cast<int>(syscall(SYS_connect, socket, address, length));
}

extern "C" int getaddrinfo(const char*, const char*, const addrinfo*, addrinfo** found) {
  *found = nullptr;
  return EAI_NONAME;
}
