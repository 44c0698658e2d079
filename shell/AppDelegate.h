#pragma once

#include <string_view>

#include "platform/uikit/UIApplication.h"

namespace leafund {

// Launching sets the accent colour. Everything lives in memory, so going to the background, coming
// back and ending need nothing done.
class AppDelegate : public UIResponder, public UIApplicationDelegate {
 public:
  static constexpr std::string_view kClassName = "AppDelegate";

  // Null until the interface is loaded.
  const std::shared_ptr<UIWindow>& window() const { return window_; }
  void setWindow(std::shared_ptr<UIWindow> window) override { window_ = std::move(window); }

  bool applicationDidFinishLaunchingWithOptions(
      UIApplication& application, const std::optional<LaunchOptions>& options) override;
  void applicationWillResignActive(UIApplication&) override {}
  void applicationDidEnterBackground(UIApplication&) override {}
  void applicationWillEnterForeground(UIApplication&) override {}
  void applicationDidBecomeActive(UIApplication&) override {}
  void applicationWillTerminate(UIApplication&) override {}

 private:
  std::shared_ptr<UIWindow> window_;
};

}  // namespace leafund
