#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "platform/Host.h"
#include "platform/graphics/Geometry.h"
#include "platform/web/WebScene.h"

namespace leafund {

// The host in a browser's page. The page owns the loop, and there is one thread: the session is the
// stretch in which a completion runs.
class WebHost final : public Host {
 public:
  // The page's one, in force from its first use on.
  static WebHost& shared();

  // Launches the application and returns 0 at once; it lives on.
  int run(UIApplication& application) override;
  bool onMain() const override { return !inSession_; }
  void post(std::function<void()> step) override;
  void transfer(const NSURLRequest& request, CompletionHandler completion) override;
  double screenScale() const override;
  void show(const UINavigationController& navigation) override;

  // The content's size and the width of tabs at its side at launch, in points.
  void setSize(CGSize size, double railWidth = 0) {
    size_ = size;
    railWidth_ = railWidth;
  }
  // Runs the steps that wait, each as one turn; those they post wait for the next call.
  void drain();
  // The end of a fetch; without a body where no whole answer came.
  void complete(int fetch, const NSData& body, int status = 0);
  // Runs the work as the session would, outside any turn and not on the main thread.
  void runInSession(const std::function<void()>& work);

 private:
  WebHost() { setCurrentHost(this); }

  CGSize size_;
  double railWidth_ = 0;
  std::deque<std::function<void()>> steps_;
  bool awaitsDrain_ = false;
  std::map<int, CompletionHandler> fetches_;
  int lastFetch_ = 0;
  bool inSession_ = false;
  ScreenPages<WebScene> pages_;
};

}  // namespace leafund
