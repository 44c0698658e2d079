#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include "platform/curl/CurlLibrary.h"
#include "platform/curl/WebAddress.h"

namespace leafund {

// One answer at a time, by the session's policy (see NSURLSession.h). On the thread of the fetches,
// and within the life of the library.
class CurlHandle {
 public:
  using Clock = std::chrono::steady_clock;

  CurlHandle(const CurlLibrary& curl, std::size_t mostBodyBytes);
  CurlHandle(const CurlHandle&) = delete;
  CurlHandle& operator=(const CurlHandle&) = delete;
  ~CurlHandle();

  // What libcurl knows it by.
  CURL* get() const { return handle_; }

  // Forgets the last answer and turns to that address.
  void aim(const WebAddress& address);

  // When the last piece of the answer came, or the handle was aimed.
  Clock::time_point lastSign() const { return lastSign_; }

  // Of an answer that arrived whole.
  int status() const;
  std::string takeBody() { return std::exchange(body_, {}); }

  // The "Location" of a redirect, without blanks around it; nothing when the answer is none or
  // names no target, so that its body counts.
  std::optional<std::string> redirectLocation() const;

 private:
  static std::size_t readHead(char* bytes, std::size_t one, std::size_t count, void* handle);
  static std::size_t readBody(char* bytes, std::size_t one, std::size_t count, void* handle);

  const CurlLibrary& curl_;
  const std::size_t mostBodyBytes_;
  CURL* const handle_;
  curl_slist* headers_ = nullptr;
  std::string body_;
  std::size_t headBytes_ = 0;
  Clock::time_point lastSign_;
};

}  // namespace leafund
