#pragma once

#include <QtQmlIntegration/qqmlintegration.h>

#include <QColor>
#include <QPointer>

#include "interface/qml/bridge/ViewBridge.h"
#include "interface/qml/items/ImageItem.h"

namespace leafund {

// An image painted from what a view shows, on a ground, and painted again when either changes.
class ViewImageItem : public leafund::ImageItem {
  Q_OBJECT
  QML_ANONYMOUS
  Q_PROPERTY(QColor ground READ ground WRITE setGround NOTIFY groundChanged FINAL)

 public:
  using ImageItem::ImageItem;

  QColor ground() const { return ground_; }
  void setGround(const QColor& ground);

 signals:
  void viewChanged();
  void groundChanged();

 protected:
  // Takes over what the view shows now, and repaints only where it is something else: a row's view
  // is refreshed at every scroll step.
  virtual void catchUp() = 0;
  // The bridge of that view is followed from now on; null before, and when it is gone.
  void follow(ViewBridge* view);
  ViewBridge* followed() const { return view_; }

 private:
  QPointer<ViewBridge> view_;
  QColor ground_ = Qt::transparent;
};

}  // namespace leafund
