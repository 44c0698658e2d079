#include "tests/random/PromptHost.h"

#include <iterator>
#include <utility>

#include "platform/foundation/FatalError.h"
#include "platform/foundation/NSURLRequest.h"
#include "platform/uikit/UIApplication.h"

namespace leafund::random {

int PromptHost::run(UIApplication& application) {
  application_ = &application;
  application.launch();
  application.becomeActive();
  return 0;
}

// It has no loop that would go on after a turn that never settles.
void PromptHost::post(std::function<void()> step) {
  if (application_ != nullptr && application_->stalled()) {
    fatalError("turn", "the layout does not settle");
  }
  steps_.push_back(std::move(step));
}

void PromptHost::transfer(const NSURLRequest& request, CompletionHandler completion) {
  transfers_.push_back({request.URL().absoluteString(), std::move(completion)});
}

void PromptHost::end(std::size_t at, NSData body, bool error) {
  const auto transfer = std::move(transfers_[at]);
  transfers_.erase(transfers_.begin() + static_cast<std::ptrdiff_t>(at));
  // Nobody examines the status, so any will do; each in its turn.
  constexpr int kStatuses[] = {200, 404, 301, 500, 206, 401, 999};
  const auto response =
      body ? std::optional(NSURLResponse{kStatuses[answers_++ % std::size(kStatuses)]})
           : std::nullopt;
  const auto reason =
      error ? std::optional(NSError{"the host could not be reached"}) : std::nullopt;
  transfer.completion(std::move(body), response, reason);
}

void PromptHost::drain() {
  while (!steps_.empty()) {
    auto step = std::move(steps_.front());
    steps_.pop_front();
    application_->turn(std::move(step));
  }
}

void PromptHost::forget() {
  transfers_.clear();
  steps_.clear();
}

}  // namespace leafund::random
