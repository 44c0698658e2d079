#pragma once

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <map>
#include <memory>
#include <string>

#include "interface/qml/bridge/SceneObject.h"
#include "platform/qt/PageMaker.h"

namespace leafund {

// How a screen looks: its item in the window, and the bridge of its scene, which outlives the item.
struct SceneSkin {
  SceneObject* scene;
  QQuickItem* item;
};

// Makes the skins of screens: the QML file of a scene is named after its controller's class. Fatal
// when the file is missing or faulty. A skin may be made ahead of need, with nothing in it but what
// the scene says: a screen that comes then has only to write what is its own. It waits in the
// wings, where it is neither seen nor reached, and is taken by one screen for good.
class SceneLoader final : public PageMaker {
 public:
  // Pages become children of `content`.
  explicit SceneLoader(QQuickItem& content);
  ~SceneLoader() override;

  // The item becomes a child of `parent`, hidden.
  SceneSkin skinOf(UIViewController& controller, QQuickItem* parent);

  std::unique_ptr<Page> make(UIViewController& controller, QQuickItem& parent) override;
  void lookAhead(const UINavigationController& navigation) override;

  QQmlEngine& engine() { return engine_; }

 private:
  void makeAhead(const UINavigationController& navigation, UIViewController& draft);
  SceneSkin makeSkin(UIViewController& controller, QQuickItem* parent);
  QQuickItem* makeItem(const std::string& fileName, const QVariantMap& properties,
                       QQuickItem* parent);

  QQmlEngine engine_;
  QQuickItem& content_;
  std::map<std::string, std::unique_ptr<QQmlComponent>> components_;
  QQuickItem* wings_ = nullptr;  // once something waits there
  std::map<std::string, SceneSkin> ahead_;
};

}  // namespace leafund
