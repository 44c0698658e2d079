#pragma once

#include <QQuickItem>
#include <memory>
#include <vector>

#include "platform/qt/SceneLoader.h"

namespace leafund {

// A screen on the glass: the bridge of its scene, its item, and the pages of its tabs. The item's
// objectName is the controller's class name. Ending a page deletes its item later and the bridge
// after it, so that no handler deletes its own item and no binding meets a bridge that is gone.
class ScenePage {
 public:
  ScenePage(SceneLoader& loader, UIViewController& controller, QQuickItem* parent);
  ScenePage(const ScenePage&) = delete;
  ScenePage& operator=(const ScenePage&) = delete;
  ~ScenePage();

  // Whether it shows this controller's view, and not one loaded before or by another.
  bool shows(const UIViewController& controller) const;
  // Brings the bar and the selected tab up to date.
  void refresh(const UINavigationController& navigation, UIViewController& controller);
  QQuickItem* item() const { return skin_.item; }

 private:
  void showTab(UIViewController& selected);

  SceneLoader& loader_;
  std::weak_ptr<UIView> root_;
  SceneSkin skin_;
  std::vector<std::unique_ptr<ScenePage>> tabs_;  // those selected so far
};

}  // namespace leafund
