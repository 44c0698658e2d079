#pragma once

#include <QQuickItem>

#include "platform/display/ScreenPages.h"
#include "platform/qt/SceneLoader.h"

namespace leafund {

// A screen on the glass: the bridge of its scene, its item, and the pages of the children it has
// shown. The item's objectName is the controller's class name. Ending a page deletes its item later
// and the bridge after it, so that no handler deletes its own item and no binding meets a bridge
// that is gone.
class ScenePage {
 public:
  ScenePage(SceneLoader& loader, UIViewController& controller, QQuickItem* parent);
  ScenePage(const ScenePage&) = delete;
  ScenePage& operator=(const ScenePage&) = delete;
  ~ScenePage();

  // Brings the bar and the child that the screen shows up to date.
  void refresh(const UINavigationController& navigation, UIViewController& controller);
  QQuickItem* item() const { return skin_.item; }

 private:
  void showChild(UIViewController& child);

  SceneLoader& loader_;
  SceneSkin skin_;
  ScreenPages<ScenePage> children_;
};

}  // namespace leafund
