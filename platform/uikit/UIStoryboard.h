#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/uikit/UIViewController.h"

namespace leafund {

// One scene: the controller's class and what builds its views.
struct SceneDescription {
  std::string name;
  std::function<std::shared_ptr<UIViewController>()> make;
  std::function<void(UIViewController&)> build;
};

enum class SegueKind {
  Push,     // a new screen on top of the stack
  UnwindTo  // back to the nearest screen of the destination's class below
};

// One row of the navigation map.
struct SegueDescription {
  std::string identifier;
  std::string source;
  std::string destination;
  SegueKind kind;
};

// A transition under way, as the source's prepareForSegueSender meets it.
class UIStoryboardSegue {
 public:
  UIStoryboardSegue(std::string identifier, std::shared_ptr<UIViewController> destination)
      : identifier_(std::move(identifier)), destination_(std::move(destination)) {}

  const std::string& identifier() const { return identifier_; }
  const std::shared_ptr<UIViewController>& destinationViewController() const {
    return destination_;
  }

 private:
  std::string identifier_;
  std::shared_ptr<UIViewController> destination_;
};

// The interface description as a whole: the scenes and the navigation map. Outlives every screen
// made from it. A name that it does not hold is fatal.
class UIStoryboard {
 public:
  UIStoryboard(std::string initialScene, std::vector<SceneDescription> scenes,
               std::vector<SegueDescription> segues);

  std::shared_ptr<UIViewController> instantiateInitialViewController() const;
  std::shared_ptr<UIViewController> instantiateViewControllerWithIdentifier(
      std::string_view sceneName) const;
  // A screen with the views of its scene, whose logic never runs: for a host that makes ahead how
  // the scene looks.
  std::shared_ptr<UIViewController> draft(std::string_view sceneName) const;
  // The scenes that can be pushed from that one.
  std::vector<std::string> scenesAfter(std::string_view sceneName) const;

  const SegueDescription& segue(std::string_view source, std::string_view identifier) const;
  // Prepares the segue, then moves the stack; the destination's view loads after that.
  void perform(const SegueDescription& segue, const std::shared_ptr<UIViewController>& source,
               const Sender& sender) const;

  const std::vector<SceneDescription>& scenes() const { return scenes_; }
  const std::vector<SegueDescription>& segues() const { return segues_; }

 private:
  std::string initialScene_;
  std::vector<SceneDescription> scenes_;
  std::vector<SegueDescription> segues_;
};

}  // namespace leafund
