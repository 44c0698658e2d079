#pragma once

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <map>
#include <memory>
#include <string>

#include "interface/qml/ScenePage.h"

namespace leafund {

class WindowClass;

// Makes the pages of screens: the QML file of a scene is named after its controller's class. Fatal
// when the file is missing or faulty.
//
// While the window is at rest, the pages that may come next are made ahead, since most of opening a
// screen is making its items. Such a page waits hidden, with nothing in it but what its scene says,
// and is shown by one screen for good.
class SceneLoader final : public PageMaker {
 public:
  // Pages become children of `content`.
  explicit SceneLoader(QQuickItem& content);
  ~SceneLoader() override;

  std::unique_ptr<Page> make(UIViewController& controller) override;
  void lookAhead(const UINavigationController& navigation) override;
  double railWidth() const override;

  // The item becomes a child of `parent`.
  QQuickItem& makeItem(const std::string& className, const QVariantMap& properties,
                       QQuickItem& parent);

  QQmlEngine& engine() { return engine_; }

 private:
  QQuickItem& content_;
  QQmlEngine engine_;
  WindowClass* windowClass_;  // the engine's
  std::map<std::string, std::unique_ptr<QQmlComponent>> components_;
  std::map<std::string, std::unique_ptr<ScenePage>> ahead_;
};

}  // namespace leafund
