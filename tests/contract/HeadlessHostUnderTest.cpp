#include <chrono>
#include <map>
#include <thread>
#include <utility>

#include "platform/headless/HeadlessHost.h"
#include "tests/contract/HostUnderTest.h"

namespace leafund {

namespace {

// The network is a map: what is served there answers, everything else cannot be reached.
class HeadlessHostUnderTest final : public HostUnderTest {
 public:
  Host& host() override { return host_; }
  void start(UIApplication& application) override { host_.run(application); }

  bool runUntil(const std::function<bool()>& done) override {
    // Only other threads of a test can make this wait: they post when they please.
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!done()) {
      if (std::chrono::steady_clock::now() > limit) return false;
      host_.drainMainQueue();
      if (!done() && !host_.fetches().empty()) endFirstFetch();
      std::this_thread::yield();
    }
    return true;
  }

  std::string serve(const std::string& path, std::string body, int status) override {
    const std::string address = "http://pictures.example" + path;
    answers_[address] = {std::move(body), status};
    return address;
  }
  std::string deadAddress() override { return "http://nobody.example/"; }

 private:
  struct Answer {
    std::string body;
    int status;
  };

  void endFirstFetch() {
    const auto answer = answers_.find(host_.fetches().front());
    if (answer == answers_.end()) {
      host_.fail(0);
    } else {
      host_.answer(0, answer->second.body, answer->second.status);
    }
  }

  HeadlessHost host_;
  std::map<std::string, Answer> answers_;
};

}  // namespace

std::unique_ptr<HostUnderTest> HostUnderTest::make() {
  return std::make_unique<HeadlessHostUnderTest>();
}

}  // namespace leafund
