#pragma once

#include <QtQmlIntegration/qqmlintegration.h>

#include <QObject>
#include <QString>

#include "platform/uikit/UINavigationController.h"

namespace leafund {

// What the navigation bar shows for a screen on the stack.
class BarBridge : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the host makes one for each screen")
  Q_PROPERTY(QString title READ title NOTIFY titleChanged FINAL)
  Q_PROPERTY(bool visible READ visible NOTIFY visibleChanged FINAL)
  Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY canGoBackChanged FINAL)
  Q_PROPERTY(QString backLabel READ backLabel CONSTANT FINAL)

 public:
  BarBridge(const UIViewController& controller, QObject* parent);

  // Takes over what the bar shows; the screen must be on the stack.
  void read(const UINavigationController& navigation, const UIViewController& controller);

  QString title() const { return title_; }
  bool visible() const { return visible_; }
  bool canGoBack() const { return canGoBack_; }
  QString backLabel() const { return UINavigationController::kBackLabel; }

  Q_INVOKABLE void goBack();

 signals:
  void titleChanged();
  void visibleChanged();
  void canGoBackChanged();

 private:
  QString title_;
  bool visible_ = false;
  bool canGoBack_ = false;
};

}  // namespace leafund
