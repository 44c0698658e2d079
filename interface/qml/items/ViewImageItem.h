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
  // What the toolkit's black and white are drawn as; every other colour is drawn as it is set.
  Q_PROPERTY(QColor black MEMBER black_ NOTIFY tonesChanged FINAL)
  Q_PROPERTY(QColor white MEMBER white_ NOTIFY tonesChanged FINAL)
  Q_PROPERTY(QColor ground READ ground WRITE setGround NOTIFY groundChanged FINAL)

 public:
  explicit ViewImageItem(QQuickItem* parent = nullptr);

  QColor ground() const { return ground_; }
  void setGround(const QColor& ground);
  QColor white() const { return white_; }

 signals:
  void viewChanged();
  void groundChanged();
  void tonesChanged();

 protected:
  // Takes over what the view shows now, and repaints only where it is something else: a row's view
  // is refreshed at every scroll step.
  virtual void catchUp() = 0;
  // The bridge of that view is followed from now on; null before, and when it is gone.
  void follow(ViewBridge* view);
  ViewBridge* followed() const { return view_; }
  QColor drawnAs(const CGColor& set) const;

 private:
  QPointer<ViewBridge> view_;
  QColor ground_ = Qt::transparent;
  QColor black_ = Qt::black;
  QColor white_ = Qt::white;
};

}  // namespace leafund
