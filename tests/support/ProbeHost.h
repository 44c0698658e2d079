#pragma once

#include <functional>
#include <thread>
#include <utility>
#include <vector>

#include "platform/Host.h"
#include "platform/foundation/NSURLRequest.h"

namespace leafund {

// A host that hands a test what the toolkit hands a host, and does nothing with it.
class ProbeHost final : public Host {
 public:
  ProbeHost() { setCurrentHost(this); }
  ~ProbeHost() override { setCurrentHost(nullptr); }

  std::vector<UIApplication*> runs;
  std::vector<std::function<void()>> steps;
  std::vector<std::pair<std::string, CompletionHandler>> transfers;
  std::function<void()> onShow;
  int answerOfRun = 0;
  double scale = 3;

  int run(UIApplication& application) override {
    runs.push_back(&application);
    return answerOfRun;
  }
  bool onMain() const override { return std::this_thread::get_id() == main_; }
  void post(std::function<void()> step) override { steps.push_back(std::move(step)); }
  void transfer(const NSURLRequest& request, CompletionHandler completion) override {
    transfers.emplace_back(request.URL().absoluteString(), std::move(completion));
  }
  double screenScale() const override { return scale; }
  void show(const UINavigationController&) override {
    if (onShow) onShow();
  }

 private:
  std::thread::id main_ = std::this_thread::get_id();
};

}  // namespace leafund
