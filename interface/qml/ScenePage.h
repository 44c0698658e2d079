#pragma once

#include <QQuickItem>

#include "interface/qml/bridge/SceneObject.h"
#include "platform/display/ScreenPages.h"
#include "platform/qt/PageMaker.h"

namespace leafund {

class SceneLoader;

// A screen by its QML: the bridge of its scene, its item, and the pages of the children it has
// shown. The item's objectName is the controller's class name. Ending a page deletes its item later
// and the bridge after it, so that no handler deletes its own item and no binding meets a bridge
// that is gone.
class ScenePage final : public Page {
 public:
  ScenePage(SceneLoader& loader, UIViewController& controller, QQuickItem& parent);
  ~ScenePage() override;

  // Shows another screen of the same scene from now on, whose view must be loaded.
  void show(UIViewController& controller) { scene_.show(controller); }

  QQuickItem& item() const override { return item_; }
  void refresh(const UINavigationController& navigation, UIViewController& controller) override;

 private:
  void showChild(UIViewController& child);

  SceneLoader& loader_;
  SceneObject& scene_;
  QQuickItem& item_;
  ScreenPages<ScenePage> children_;
};

}  // namespace leafund
