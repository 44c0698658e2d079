#pragma once

#include <QObject>
#include <memory>

#include "platform/Host.h"
#include "platform/qt/WindowSettings.h"

class QGuiApplication;

namespace leafund {

class CurlTransfer;
class QtWindow;
class SceneStage;

// The host on a real window. Made on the main thread; it makes nothing of its own before start().
class QtHost final : public Host {
 public:
  // The arguments must live as long as the host.
  QtHost(int argc, char** argv, WindowSettings settings);
  ~QtHost() override;

  // Serves until the window is closed, and answers 0.
  int run(UIApplication& application) override;
  // Opens the window and launches the application, without a loop: for whoever has one already.
  void start(UIApplication& application);
  // Takes everything down that start() made; what is under way is given up.
  void stop();

  bool onMain() const override;
  void post(std::function<void()> step) override;
  void transfer(const NSURLRequest& request, CompletionHandler completion) override;
  double screenScale() const override;
  void show(const UINavigationController& navigation) override;

  // Null before start() and after stop().
  QtWindow* window() const { return window_.get(); }

 private:
  int argc_;  // the system's own count, which Qt keeps a reference to
  char** argv_;
  WindowSettings settings_;
  QObject mainThread_;  // steps are posted to it
  std::unique_ptr<QGuiApplication> gui_;
  std::unique_ptr<QtWindow> window_;
  std::unique_ptr<PageMaker> pages_;
  std::unique_ptr<SceneStage> stage_;
  std::unique_ptr<CurlTransfer> transfer_;
};

}  // namespace leafund
