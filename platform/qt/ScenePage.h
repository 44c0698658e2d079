#pragma once

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/qt/SceneObject.h"

namespace leafund {

// Makes the items of scenes: the QML file of a scene is named after its controller's class.
class SceneLoader {
 public:
  explicit SceneLoader(QQmlEngine& engine) : engine_(engine) {}
  // Fatal when the file is missing or faulty. The item belongs to `parent`.
  QQuickItem* makeItem(const std::string& className, SceneObject& scene, QQuickItem* parent);

 private:
  QQmlEngine& engine_;
  std::map<std::string, std::unique_ptr<QQmlComponent>> components_;
};

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
  QQuickItem* item() const { return item_; }

 private:
  void showTab(UIViewController& selected);

  SceneLoader& loader_;
  std::weak_ptr<UIView> root_;
  SceneObject* scene_;
  QQuickItem* item_;
  std::vector<std::unique_ptr<ScenePage>> tabs_;  // those selected so far
};

}  // namespace leafund
