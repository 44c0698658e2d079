#include "platform/curl/Connections.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>

namespace leafund {

namespace {

// -1 where there is none. `nameOf` is getsockname or getpeername.
int portOf(curl_socket_t socket, decltype(&getsockname) nameOf) {
  sockaddr_in6 name{};  // An IPv4 address has its port in the same place.
  socklen_t size = sizeof name;
  const bool isKnown = nameOf(socket, reinterpret_cast<sockaddr*>(&name), &size) == 0;
  return isKnown ? ntohs(name.sin6_port) : -1;
}

bool hasNothingToRead(curl_socket_t socket) {
  char byte = 0;
  return recv(socket, &byte, 1, MSG_PEEK | MSG_DONTWAIT) < 0 &&
         (errno == EAGAIN || errno == EWOULDBLOCK);
}

}  // namespace

bool Connections::isQuiet(int herePort, int therePort) const {
  bool isFound = false;
  for (const curl_socket_t socket : sockets_) {
    if (portOf(socket, &getsockname) != herePort) continue;
    if (portOf(socket, &getpeername) != therePort) continue;
    if (!hasNothingToRead(socket)) return false;
    isFound = true;
  }
  return isFound;
}

curl_socket_t Connections::open(void* connections, curlsocktype, curl_sockaddr* address) {
  const curl_socket_t opened =
      socket(address->family, address->socktype | SOCK_CLOEXEC, address->protocol);
  if (opened != CURL_SOCKET_BAD) static_cast<Connections*>(connections)->sockets_.insert(opened);
  return opened;
}

int Connections::close(void* connections, curl_socket_t socket) {
  static_cast<Connections*>(connections)->sockets_.erase(socket);
  return ::close(socket);
}

}  // namespace leafund
