#include "platform/foundation/NSURLSession.h"

#include <utility>

#include "platform/Host.h"

namespace leafund {

NSURLSessionDataTask::NSURLSessionDataTask(NSURLRequest request, CompletionHandler handler)
    : request_(std::move(request)), handler_(std::move(handler)) {}

void NSURLSessionDataTask::resume() {
  if (!handler_) return;
  auto handler = std::make_shared<CompletionHandler>(std::exchange(handler_, nullptr));
  currentHost().transfer(request_, [handler](NSData body, std::optional<NSURLResponse> response,
                                             std::optional<NSError> error) {
    if (body && body->empty()) body = nullptr;
    // Taken out of this closure: the host may destroy it, and copies of it, on its own thread.
    auto running = std::make_shared<CompletionHandler>(std::exchange(*handler, nullptr));
    (*running)(std::move(body), std::move(response), std::move(error));
    currentHost().post([kept = std::move(running)] {});
  });
}

NSURLSession& NSURLSession::sharedSession() {
  static NSURLSession session;
  return session;
}

std::shared_ptr<NSURLSessionDataTask> NSURLSession::dataTaskWithRequestCompletionHandler(
    NSURLRequest request, CompletionHandler handler) {
  return std::make_shared<NSURLSessionDataTask>(std::move(request), std::move(handler));
}

}  // namespace leafund
