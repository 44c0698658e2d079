#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <utility>

#include "platform/uikit/UIApplication.h"
#include "tests/support/ProbeScreen.h"

namespace leafund {

// An application's delegate that writes every call into the log.
class ProbeDelegate : public UIApplicationDelegate {
 public:
  explicit ProbeDelegate(ProbeLog& log) : log_(log) {}

  std::shared_ptr<UIWindow> window;
  std::optional<LaunchOptions> launchOptions;
  std::function<void(UIApplication&)> onLaunch;

  void setWindow(std::shared_ptr<UIWindow> made) override { window = std::move(made); }
  bool applicationDidFinishLaunchingWithOptions(
      UIApplication& application, const std::optional<LaunchOptions>& options) override {
    log_.push_back("launched");
    launchOptions = options;
    if (onLaunch) onLaunch(application);
    return true;
  }
  void applicationWillResignActive(UIApplication&) override { log_.push_back("resigns active"); }
  void applicationDidEnterBackground(UIApplication&) override { log_.push_back("in background"); }
  void applicationWillEnterForeground(UIApplication&) override { log_.push_back("to foreground"); }
  void applicationDidBecomeActive(UIApplication&) override { log_.push_back("active"); }
  void applicationWillTerminate(UIApplication&) override { log_.push_back("ends"); }

 private:
  ProbeLog& log_;
};

}  // namespace leafund
