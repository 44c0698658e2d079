#pragma once

#include <functional>
#include <utility>

#include "platform/Host.h"
#include "platform/uikit/UIApplication.h"

namespace leafund {

// A host without a window, on which nothing costs anything: no picture ever comes, and what is
// posted runs when it is asked for by nobody. What is measured on it is the application's own work.
class SilentHost final : public Host {
 public:
  SilentHost() { setCurrentHost(this); }
  ~SilentHost() override { setCurrentHost(nullptr); }

  int run(UIApplication& application) override {
    application.resize({390, 844});
    application.launch();
    return 0;
  }
  bool onMain() const override { return true; }
  void post(std::function<void()>) override {}
  void transfer(const NSURLRequest&, CompletionHandler) override { ++transfers; }
  double screenScale() const override { return 2; }
  void show(const UINavigationController&) override {}

  long transfers = 0;
};

}  // namespace leafund
