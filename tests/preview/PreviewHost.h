#pragma once

#include <QFileSystemWatcher>
#include <QTimer>
#include <memory>

#include "interface/qml/SceneLoader.h"
#include "platform/qt/QtHost.h"
#include "platform/qt/SceneStage.h"
#include "tests/preview/SourceSkins.h"

namespace leafund {

// The host on a real window, but for one thing: the skins come from a folder of sources, and what
// is in the window is made anew whenever one of them is saved.
class PreviewHost final : public Host {
 public:
  // The arguments must live as long as the host.
  PreviewHost(int argc, char** argv, const QString& skins);
  ~PreviewHost() override;

  int run(UIApplication& application) override;
  void start(UIApplication& application);
  void stop();

  bool onMain() const override { return host_.onMain(); }
  void post(std::function<void()> step) override { host_.post(std::move(step)); }
  void transfer(const NSURLRequest& request, CompletionHandler completion) override;
  double screenScale() const override { return host_.screenScale(); }
  void show(const UINavigationController& navigation) override;

  QtWindow* window() const { return host_.window(); }
  // How often what is in the window was made anew.
  int reloads() const { return reloads_; }

 private:
  std::unique_ptr<SceneLoader> makePages();
  void watch();
  // Leaves the window as it is where the skin, or one it uses, cannot be read.
  void reload();

  QString folder_;
  SourceSkins skins_;
  QtHost host_;
  std::unique_ptr<QFileSystemWatcher> watcher_;
  std::unique_ptr<QTimer> pause_;
  std::unique_ptr<SceneLoader> pages_;
  std::unique_ptr<SceneStage> stage_;
  int reloads_ = 0;
};

}  // namespace leafund
