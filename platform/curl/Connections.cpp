#include "platform/curl/Connections.h"

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
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

enum class Heard { Nothing, Bytes, End };

// Bytes before a close are not surplus bytes: a host may say why it closes an idle connection, and
// TLS always does.
Heard heardOn(curl_socket_t socket) {
  char byte = 0;
  const auto count = recv(socket, &byte, 1, MSG_PEEK | MSG_DONTWAIT);
  if (count < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) return Heard::Nothing;
  if (count <= 0) return Heard::End;
  pollfd end{socket, POLLRDHUP, 0};
  return poll(&end, 1, 0) > 0 ? Heard::End : Heard::Bytes;
}

}  // namespace

Connections::Use Connections::nextUse(const std::string& host) {
  Host& asked = hosts_[host];
  if (asked.manners == Manners::Watched && Clock::now() - asked.since >= quiet_) judge(asked);
  if (asked.manners == Manners::Quiet) return Use::Any;
  if (asked.manners != Manners::Unknown) return Use::Once;
  asked.manners = Manners::Asked;
  return Use::Watched;
}

void Connections::judge(Host& host) {
  const Heard heard = heardOn(host.watched);
  if (heard == Heard::Nothing) host.manners = Manners::Quiet;
  if (heard == Heard::Bytes) host.manners = Manners::Loud;
  if (heard == Heard::End) host.manners = Manners::Unknown;
}

std::optional<Connections::Clock::time_point> Connections::watchedUntil(
    const std::string& host) const {
  const auto found = hosts_.find(host);
  if (found == hosts_.end() || found->second.manners != Manners::Watched) return std::nullopt;
  return found->second.since + quiet_;
}

bool Connections::isLoud(const std::string& host) const {
  const auto found = hosts_.find(host);
  return found != hosts_.end() && found->second.manners == Manners::Loud;
}

void Connections::hadAnswer(const std::string& host, curl_socket_t watched) {
  Host& asked = hosts_[host];
  if (asked.manners != Manners::Asked) return;
  const auto found = sockets_.find(watched);
  const bool isOpen = found != sockets_.end() && found->second == host;
  asked = isOpen ? Host{Manners::Watched, watched, Clock::now()} : Host{};
}

bool Connections::isQuiet(int herePort, int therePort) {
  return std::any_of(sockets_.begin(), sockets_.end(), [&](const auto& open) {
    const auto& [socket, host] = open;
    if (portOf(socket, &getsockname) != herePort) return false;
    if (portOf(socket, &getpeername) != therePort) return false;
    const Heard heard = heardOn(socket);
    if (heard == Heard::Bytes) hosts_[host].manners = Manners::Loud;
    return heard == Heard::Nothing;
  });
}

curl_socket_t Connections::open(const std::string& host, const curl_sockaddr& address) {
  const curl_socket_t opened =
      socket(address.family, address.socktype | SOCK_CLOEXEC, address.protocol);
  if (opened != CURL_SOCKET_BAD) sockets_.emplace(opened, host);
  return opened;
}

int Connections::close(void* connections, curl_socket_t socket) {
  auto& self = *static_cast<Connections*>(connections);
  if (const auto closed = self.sockets_.extract(socket)) {
    Host& host = self.hosts_[closed.mapped()];
    // Newer versions of libcurl close such a connection themselves, and it is not used again.
    if (heardOn(socket) == Heard::Bytes) host.manners = Manners::Loud;
    if (host.manners == Manners::Watched && host.watched == socket) host = {};
  }
  return ::close(socket);
}

}  // namespace leafund
