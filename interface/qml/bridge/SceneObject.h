#pragma once

#include <QtQmlIntegration/qqmlintegration.h>

#include <QObject>
#include <QVariantMap>
#include <memory>

#include "interface/qml/bridge/ViewObject.h"
#include "platform/uikit/UINavigationController.h"

namespace leafund {

// What the skin of one scene is given: the scene's views by name, its root view, and what its
// navigation bar shows. It owns the views' bridges.
class SceneObject : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the host makes one for each scene")
  Q_PROPERTY(QVariantMap views READ views CONSTANT FINAL)
  Q_PROPERTY(leafund::ViewObject* root READ root CONSTANT FINAL)
  Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
  Q_PROPERTY(bool barShown READ barShown NOTIFY changed FINAL)
  Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY changed FINAL)
  Q_PROPERTY(QString backLabel READ backLabel CONSTANT FINAL)

 public:
  // The controller's view must be loaded.
  explicit SceneObject(UIViewController& controller);

  // Shows another screen of the same scene from now on, whose view must be loaded.
  void show(UIViewController& controller);
  // Takes over what the bar shows; the screen must be on the stack.
  void readBar(const UINavigationController& navigation, const UIViewController& controller);

  QVariantMap views() const { return views_; }
  ViewObject* root() const { return root_; }
  QString title() const { return title_; }
  bool barShown() const { return barShown_; }
  bool canGoBack() const { return canGoBack_; }
  QString backLabel() const { return UINavigationController::kBackLabel; }

  Q_INVOKABLE void goBack();

 signals:
  void changed();

 private:
  void readViews(const UIViewController& controller);

  QVariantMap views_;
  ViewObject* root_;
  QString title_;
  bool barShown_ = false;
  bool canGoBack_ = false;
};

}  // namespace leafund
