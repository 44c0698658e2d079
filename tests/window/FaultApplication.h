#pragma once

#include <map>
#include <memory>
#include <string>

#include "platform/curl/CurlTransfer.h"
#include "platform/uikit/UIImageView.h"
#include "tests/window/FaultHosts.h"
#include "tests/window/FaultTable.h"
#include "tests/window/WindowApplication.h"

namespace leafund {

// The host of the window, whose fetches are watched and may be less patient than the session's.
class WatchedHost final : public Host {
 public:
  explicit WatchedHost(QtHost& host) : host_(host) {}
  ~WatchedHost() override { setCurrentHost(&host_); }

  // Gives up what it fetches itself, while there is still an application.
  void stop() { limited_.reset(); }

  // From now on fetches have limits of their own.
  void limit(const CurlTransfer::Limits& limits) {
    limited_ = std::make_unique<CurlTransfer>(limits);
  }
  int started() const { return started_; }
  // How many fetches of that address have ended, with all that they do on the main thread.
  int ended(const std::string& address) const;
  int ended() const;

  int run(UIApplication& application) override { return host_.run(application); }
  bool onMain() const override { return host_.onMain(); }
  void post(std::function<void()> step) override { host_.post(std::move(step)); }
  void transfer(const NSURLRequest& request, CompletionHandler completion) override;
  double screenScale() const override { return host_.screenScale(); }
  void show(const UINavigationController& navigation) override { host_.show(navigation); }

 private:
  QtHost& host_;
  std::unique_ptr<CurlTransfer> limited_;
  int started_ = 0;
  std::map<std::string, int> ended_;
};

// The application in its window, led to the places that pictures are fetched for. It is used by way
// of the toolkit's own events, several without a breath between them: no answer can arrive before
// the test has prepared what it meets.
class FaultApplication {
 public:
  FaultApplication();
  // No fetch outlives the host that watches it.
  ~FaultApplication();

  void signIn();
  void tap(const std::string& view);
  // The view on the topmost screen; fails the test where there is none.
  std::shared_ptr<UIView> view(const std::string& name);
  UITableView& table();
  void tapRow(std::ptrdiff_t row);

  // Shows the place, whose picture is at that address, and which holds a picture of the old colour
  // when this returns. No event has been served since the fetch began.
  void open(Place place, const std::string& address);
  UIImageView& imageView() { return *imageView_; }
  // What stands in the window in the middle of the place, and what stands there without a picture.
  QColor colour();
  QColor ground();

  WindowApplication window;
  WatchedHost host;
  FaultHosts hosts;

 private:
  void hold(std::shared_ptr<UIImageView> place);
  QQuickItem& item();

  std::shared_ptr<UIImageView> imageView_;
};

}  // namespace leafund
