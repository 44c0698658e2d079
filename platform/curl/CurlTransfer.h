#pragma once

#include <pthread.h>

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>

#include "platform/Host.h"
#include "platform/foundation/NSURLSession.h"

namespace leafund {

class CurlSession;

// Fetches whole bodies on a thread of its own, by the session's policy (see NSURLSession.h). The
// thread is started by the first fetch.
//
// To be made and destroyed on the main thread. What is still under way is then given up, at once:
// its completion is not called any more and is destroyed there, on the main thread, because it may
// own screens. Nothing may be started by then.
//
// To be made before there are other threads: it takes SSLKEYLOGFILE out of the environment, where
// libcurl would find a file to write the keys of encrypted connections to.
class CurlTransfer {
 public:
  // Above zero, all of them but the last.
  struct Limits {
    int redirects = NSURLSession::kMostRedirects;
    // Without a byte of a body or a line of a head, and also without a connection: a host is asked
    // over at most six at once.
    std::chrono::milliseconds idle = std::chrono::seconds{NSURLSession::kIdleSeconds};
    std::size_t bodyBytes = NSURLSession::kMostBodyBytes;
    // Behind an answer, before a host's connections are used again: see Connections. Zero or more.
    std::chrono::milliseconds quiet = std::chrono::milliseconds{50};
  };

  CurlTransfer();
  // Where there is no library of that file name, each fetch is an error.
  explicit CurlTransfer(const Limits& limits, std::string library = "libcurl.so.4");
  CurlTransfer(const CurlTransfer&) = delete;
  CurlTransfer& operator=(const CurlTransfer&) = delete;
  ~CurlTransfer();

  // Returns at once. The completion runs exactly once, on the thread of the fetches, and is
  // destroyed there after it has run; where no thread can be had, as a step of the current host's
  // main queue. With an error there is neither a body nor a response; else
  // there are both, and the body may be empty. A status that tells of a failure is no error, a body
  // that does not arrive whole is one. On the main thread only. `url` is UTF-8.
  void start(std::string url, CompletionHandler completion);

 private:
  Limits limits_;
  std::string library_;
  std::unique_ptr<CurlSession> session_;  // Null until the first fetch.
  pthread_t thread_ = {};
};

}  // namespace leafund
