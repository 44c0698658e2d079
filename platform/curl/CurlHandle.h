#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/curl/Connections.h"
#include "platform/curl/CurlLibrary.h"
#include "platform/curl/WebAddress.h"

namespace leafund {

// One answer at a time, by the session's policy (see NSURLSession.h). On the thread of the fetches,
// and within the life of the library.
class CurlHandle {
 public:
  using Clock = std::chrono::steady_clock;

  CurlHandle(const CurlLibrary& curl, Connections& connections, std::size_t mostBodyBytes);
  CurlHandle(const CurlHandle&) = delete;
  CurlHandle& operator=(const CurlHandle&) = delete;
  ~CurlHandle();

  // libcurl's easy handle; null for want of memory.
  CURL* get() const { return handle_; }

  // Drops the last answer; the next transfer goes to that address.
  void aim(const WebAddress& address, Connections::Use use);
  Connections::Use use() const { return use_; }

  // When data last arrived, or when the handle was aimed.
  Clock::time_point lastSign() const { return lastSign_; }

  // Zero when no answer has begun.
  int status() const;
  // Whether the connection had served another answer before.
  bool usedAKeptConnection() const { return usesAKeptConnection_; }
  // That the answer came by; CURL_SOCKET_BAD when it is closed.
  curl_socket_t socket() const;
  // Whether libcurl closed a connection that the answer left open: surplus bytes followed the
  // answer in the same packet.
  bool hadBytesBehind() const;

  // Of an answer that arrived whole.
  std::string takeBody() { return std::exchange(body_, {}); }

  // The "Location" of a redirect, without blanks around it; nothing when the answer is none or
  // names no target, so that its body counts.
  std::optional<std::string> redirectLocation() const;

 private:
  static curl_socket_t openSocket(void* handle, curlsocktype purpose, curl_sockaddr* address);
  static int beforeRequest(void* handle, char* there, char* here, int therePort, int herePort);
  bool acceptsHeadLine(std::string_view line);
  static std::size_t readHead(char* bytes, std::size_t one, std::size_t count, void* handle);
  static std::size_t readBody(char* bytes, std::size_t one, std::size_t count, void* handle);

  const CurlLibrary& curl_;
  Connections& connections_;
  const std::size_t mostBodyBytes_;
  CURL* const handle_;
  curl_slist* headers_ = nullptr;
  std::string body_;
  std::size_t headBytes_ = 0;
  int headLines_ = 0;
  std::optional<std::string> length_;  // as the head says it
  bool maySpeakOfItsEnd_ = false;      // has a line about the connection, or is older than HTTP/1.1
  std::string host_;                   // the origin aimed at
  Connections::Use use_ = Connections::Use::Once;
  bool usesAKeptConnection_ = false;
  Clock::time_point lastSign_;
};

}  // namespace leafund
