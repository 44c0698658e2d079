#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/Host.h"
#include "platform/graphics/Geometry.h"

namespace leafund {

// A host without a window, for speed and exactness. Nothing happens by itself: posted steps run
// when the main queue is drained, and a fetch stays under way until it is answered, in any order.
class HeadlessHost final : public Host {
 public:
  explicit HeadlessHost(CGSize size = {390, 844}, double screenScale = 2);
  ~HeadlessHost() override;

  // Launches the application and returns 0 at once; it lives on.
  int run(UIApplication& application) override;
  bool onMain() const override;
  void post(std::function<void()> step) override;
  void transfer(const NSURLRequest& request, CompletionHandler completion) override;
  double screenScale() const override { return screenScale_; }
  void show(const UINavigationController& navigation) override;

  // Runs posted steps, and those they post, each as one turn.
  void drainMainQueue();

  // The addresses of the fetches under way, in the order started.
  std::vector<std::string> fetches() const;
  // Ends the fetch at that position on the session's thread, waits for its completion, and drains
  // the main queue unless told not to. Answers the body, whatever the status.
  void answer(std::size_t position, std::string body, int status = 200);
  void fail(std::size_t position);
  // Runs the completion alone: what it posts stays in the main queue.
  void completeWithoutDraining(std::size_t position, NSData body, int status = 200);

  // How often the toolkit asked to show the stack.
  int showings() const { return showings_; }

 private:
  struct Fetch {
    std::string address;
    CompletionHandler completion;
  };
  Fetch take(std::size_t position);

  CGSize size_;
  double screenScale_;
  std::thread::id main_ = std::this_thread::get_id();
  UIApplication* application_ = nullptr;
  mutable std::mutex mutex_;  // guards steps_, which the session's thread adds to
  std::deque<std::function<void()>> steps_;
  std::deque<Fetch> fetches_;
  int showings_ = 0;
};

}  // namespace leafund
