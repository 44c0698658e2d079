#pragma once

#include <curl/curl.h>

#include <set>

namespace leafund {

// The connections that libcurl has open, so that a fetch can tell whether one that was used before
// is quiet. Bytes behind its last answer would be read as the next one: libcurl looks for them only
// in the packet that ends the answer.
class Connections {
 public:
  // Neither can be read from nor is closed. By its port here and the port of the host.
  bool isQuiet(int herePort, int therePort) const;

  // As libcurl opens and closes sockets by callbacks; `connections` is such an object.
  static curl_socket_t open(void* connections, curlsocktype purpose, curl_sockaddr* address);
  static int close(void* connections, curl_socket_t socket);

 private:
  std::set<curl_socket_t> sockets_;
};

}  // namespace leafund
