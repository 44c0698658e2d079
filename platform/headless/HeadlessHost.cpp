#include "platform/headless/HeadlessHost.h"

#include <utility>

#include "platform/foundation/FatalError.h"
#include "platform/foundation/NSURLRequest.h"
#include "platform/uikit/UIApplication.h"

namespace leafund {

HeadlessHost::HeadlessHost(CGSize size, double screenScale)
    : size_(size), screenScale_(screenScale) {
  setCurrentHost(this);
}

HeadlessHost::~HeadlessHost() { setCurrentHost(nullptr); }

int HeadlessHost::run(UIApplication& application) {
  application_ = &application;
  application.resize(size_);
  application.launch();
  application.becomeActive();  // as a window does that comes to the front
  return 0;
}

bool HeadlessHost::onMain() const { return std::this_thread::get_id() == main_; }

void HeadlessHost::post(std::function<void()> step) {
  // It has no loop that would go on, and draining would never end.
  if (onMain() && application_ != nullptr && application_->stalled()) {
    fatalError("turn", "the layout does not settle");
  }
  const std::lock_guard lock(mutex_);
  steps_.push_back(std::move(step));
}

void HeadlessHost::transfer(const NSURLRequest& request, CompletionHandler completion) {
  fetches_.push_back({request.URL().absoluteString(), std::move(completion)});
}

void HeadlessHost::show(const UINavigationController&) { ++showings_; }

void HeadlessHost::drainMainQueue() {
  for (;;) {
    std::function<void()> step;
    {
      const std::lock_guard lock(mutex_);
      if (steps_.empty()) return;
      step = std::move(steps_.front());
      steps_.pop_front();
    }
    if (application_ != nullptr) {
      application_->turn(std::move(step));
    } else {
      step();
    }
  }
}

std::vector<std::string> HeadlessHost::fetches() const {
  std::vector<std::string> addresses;
  for (const auto& fetch : fetches_) addresses.push_back(fetch.address);
  return addresses;
}

HeadlessHost::Fetch HeadlessHost::take(std::size_t position) {
  auto fetch = std::move(fetches_.at(position));
  fetches_.erase(fetches_.begin() + static_cast<std::ptrdiff_t>(position));
  return fetch;
}

void HeadlessHost::completeWithoutDraining(std::size_t position, NSData body, int status) {
  auto fetch = take(position);
  std::thread session(
      [&] { fetch.completion(std::move(body), NSURLResponse{status}, std::nullopt); });
  session.join();
}

void HeadlessHost::answer(std::size_t position, std::string body, int status) {
  completeWithoutDraining(position, std::make_shared<const std::string>(std::move(body)), status);
  drainMainQueue();
}

void HeadlessHost::fail(std::size_t position) {
  auto fetch = take(position);
  std::thread session(
      [&] { fetch.completion(nullptr, std::nullopt, NSError{"the host could not be reached"}); });
  session.join();
  drainMainQueue();
}

}  // namespace leafund
