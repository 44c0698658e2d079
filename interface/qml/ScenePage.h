#pragma once

#include <QQuickItem>
#include <QVariantMap>
#include <map>
#include <string>

#include "interface/qml/bridge/BarBridge.h"
#include "interface/qml/bridge/ViewBridge.h"
#include "platform/display/ScreenPages.h"
#include "platform/qt/PageMaker.h"

namespace leafund {

class SceneLoader;

// A screen by its QML: the bridges of its views, its item, and the pages of the children it has
// shown. The item's objectName is the controller's class name.
//
// The item requires each named view of the scene as a property, the view's name with its first
// letter lowered, and `root`, the screen's own view; a screen on the stack also `bar`. QML tells
// when a view is missing, when there is one too many and when one is of another kind.
//
// Ending a page deletes its item later and the bridges after it, so that no handler deletes its own
// item and no binding meets a bridge that is gone.
class ScenePage final : public Page {
 public:
  ScenePage(SceneLoader& loader, UIViewController& controller, QQuickItem& parent);
  ~ScenePage() override;

  // Shows another screen of the same scene from now on, whose view must be loaded.
  void show(UIViewController& controller);

  QQuickItem& item() const override { return item_; }
  void refresh(const UINavigationController& navigation, UIViewController& controller) override;

 private:
  QVariantMap makeBridges(UIViewController& controller);
  void showChild(UIViewController& child);

  SceneLoader& loader_;
  QObject& bridges_;                          // owns those below
  std::map<std::string, ViewBridge*> views_;  // by the view's name, the screen's own without one
  BarBridge* bar_ = nullptr;                  // of a screen on the stack
  QQuickItem& item_;
  ScreenPages<ScenePage> children_;
};

}  // namespace leafund
