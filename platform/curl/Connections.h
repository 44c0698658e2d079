#pragma once

#include <curl/curl.h>

#include <chrono>
#include <map>
#include <optional>
#include <string>

namespace leafund {

// The connections that libcurl has open, and which hosts are trusted with a kept one.
//
// HTTP/1.1 does not say which request an answer is for. What a host sends behind an answer is read
// as the next one, and cannot be told from it once the next request has left; libcurl looks for it
// only in the packet that ends the answer. So a host's connections are used again only after one of
// them has stayed quiet for a while, and never again after a byte too many.
class Connections {
 public:
  using Clock = std::chrono::steady_clock;

  // What a fetch gets from libcurl.
  enum class Use {
    Any,      // One that is open already, or a new one, and kept.
    Watched,  // A new one, kept to see what comes behind the answer.
    Once      // A new one, closed behind the answer.
  };

  // `quiet`: how long the watched connection must stay so, zero or more.
  explicit Connections(std::chrono::milliseconds quiet) : quiet_(quiet) {}

  // For the next fetch from that host, an origin. After `Watched`, hadAnswer() must follow.
  Use nextUse(const std::string& host);
  // While a connection is open on which nothing is asked, to see what comes behind the answer: when
  // the next use may be another one.
  std::optional<Clock::time_point> watchedUntil(const std::string& host) const;
  // The fetch over the watched connection has ended; CURL_SOCKET_BAD where it is not open any more.
  void hadAnswer(const std::string& host, curl_socket_t watched);
  // For a host that has sent a byte too many: its connections are not used again.
  void distrust(const std::string& host) { hosts_[host].manners = Manners::Loud; }
  bool isLoud(const std::string& host) const;

  // Whether the open connection, by its port here and the port of the host, has nothing to read.
  bool isQuiet(int herePort, int therePort);

  // For libcurl, which is told of them by callbacks.
  curl_socket_t open(const std::string& host, const curl_sockaddr& address);
  static int close(void* connections, curl_socket_t socket);

 private:
  enum class Manners { Unknown, Asked, Watched, Quiet, Loud };
  struct Host {
    Manners manners = Manners::Unknown;
    curl_socket_t watched = CURL_SOCKET_BAD;
    Clock::time_point since = {};
  };

  static void judge(Host& host);

  const std::chrono::milliseconds quiet_;
  std::map<curl_socket_t, std::string> sockets_;  // and their hosts
  std::map<std::string, Host> hosts_;
};

}  // namespace leafund
