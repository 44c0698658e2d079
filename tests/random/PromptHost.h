#pragma once

#include <deque>
#include <functional>
#include <string>

#include "platform/Host.h"
#include "platform/graphics/Geometry.h"

namespace leafund::random {

// A host without a window that needs no threads: a transfer ends on the thread that asks it to,
// because starting a thread an answer (some 60 microseconds) would be most of a long run. What a
// host owes its application apart from that, it keeps.
class PromptHost : public Host {
 public:
  PromptHost() { setCurrentHost(this); }
  ~PromptHost() override { setCurrentHost(nullptr); }

  int run(UIApplication& application) override;
  bool onMain() const override { return true; }
  void post(std::function<void()> step) override;
  void transfer(const NSURLRequest& request, CompletionHandler completion) override;
  double screenScale() const override { return 2; }
  void show(const UINavigationController&) override {}

  std::size_t open() const { return transfers_.size(); }
  const std::string& address(std::size_t at) const { return transfers_[at].address; }
  // A null body or an error, or both of them at once.
  void end(std::size_t at, NSData body, bool error);
  virtual void drain();
  // Whatever is under way is forgotten, as when the process ends.
  void forget();

 protected:
  std::deque<std::function<void()>> steps_;

 private:
  struct Transfer {
    std::string address;
    CompletionHandler completion;
  };
  UIApplication* application_ = nullptr;
  std::deque<Transfer> transfers_;
  std::size_t answers_ = 0;
};

}  // namespace leafund::random
