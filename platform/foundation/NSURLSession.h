#pragma once

#include <cstddef>
#include <memory>

#include "platform/foundation/NSURLRequest.h"
#include "platform/foundation/NSURLResponse.h"

namespace leafund {

// One fetch. It may be dropped once it was resumed: nothing else keeps a record of it, and it
// cannot be cancelled.
class NSURLSessionDataTask {
 public:
  NSURLSessionDataTask(NSURLRequest request, CompletionHandler handler);

  // Starts the fetch; a second call does nothing.
  void resume();

 private:
  NSURLRequest request_;
  CompletionHandler handler_;
};

// The one session of the process. Its policy, which hosts carry out: http and https only, GET, no
// headers of a request's own, bodies as sent, no cookies, no cache but a browser's, at most
// `kMostRedirects` redirects, `kIdleSeconds` without a byte, `kMostBodyBytes` a body. Every breach
// is an error, and an empty body is no body.
class NSURLSession {
 public:
  static constexpr int kMostRedirects = 20;
  static constexpr int kIdleSeconds = 60;
  static constexpr std::size_t kMostBodyBytes = std::size_t{64} * 1024 * 1024;

  static NSURLSession& sharedSession();

  // The handler runs once and never inside resume(); where, Host::transfer() says. What it holds is
  // let go on the main thread, because screens and cells must end there.
  std::shared_ptr<NSURLSessionDataTask> dataTaskWithRequestCompletionHandler(
      NSURLRequest request, CompletionHandler handler);
};

}  // namespace leafund
