#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/uikit/Scene.h"

namespace leafund {

// What happened, in order, a line each: "First viewDidLoad".
using ProbeLog = std::vector<std::string>;

// A screen of no application, which writes its life into the log.
class ProbeScreen : public UIViewController {
 public:
  explicit ProbeScreen(ProbeLog& log) : log_(log) {}

  std::function<void()> onLoad;
  std::function<void(UIStoryboardSegue&, const Sender&)> onPrepare;
  std::vector<CGRect> framesAtAppearance;
  int layouts = 0;

  void viewDidLoad() override {
    write("viewDidLoad");
    if (onLoad) onLoad();
  }
  void viewWillAppear(bool animated) override {
    write(animated ? "viewWillAppear, animated" : "viewWillAppear");
    framesAtAppearance.push_back(viewIfLoaded()->frame());
  }
  void viewDidLayoutSubviews() override { ++layouts; }
  void didReceiveMemoryWarning() override { write("didReceiveMemoryWarning"); }
  void prepareForSegueSender(UIStoryboardSegue& segue, const Sender& sender) override {
    write("prepares " + segue.identifier());
    if (onPrepare) onPrepare(segue, sender);
  }
  void write(const std::string& what) { log_.push_back(className() + " " + what); }

 private:
  ProbeLog& log_;
};

using FillProbe = std::function<void(Scene<ProbeScreen>&, ProbeScreen&)>;

// A scene of a probe screen; the log must outlive it.
inline SceneDescription probeScene(ProbeLog& log, std::string name, FillProbe fill = nullptr) {
  return {std::move(name), [&log] { return std::make_shared<ProbeScreen>(log); },
          [fill = std::move(fill)](UIViewController& controller) {
            auto& screen = static_cast<ProbeScreen&>(controller);
            Scene<ProbeScreen> scene(screen);
            if (fill) fill(scene, screen);
          }};
}

// The log so far; it begins anew.
inline ProbeLog take(ProbeLog& log) { return std::exchange(log, {}); }

}  // namespace leafund
