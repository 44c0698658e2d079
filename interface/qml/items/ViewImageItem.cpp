#include "interface/qml/items/ViewImageItem.h"

namespace leafund {

ViewImageItem::ViewImageItem(QQuickItem* parent) : ImageItem(parent) {
  connect(this, &ViewImageItem::tonesChanged, this, &ViewImageItem::repaint);
}

QColor ViewImageItem::drawnAs(const CGColor& set) const {
  return ViewBridge::drawnAs(qtColor(set), black_, white_);
}

void ViewImageItem::follow(ViewBridge* view) {
  if (view == view_) return;
  if (view_) disconnect(view_, nullptr, this, nullptr);
  view_ = view;
  if (view_) connect(view_, &ViewBridge::refreshed, this, &ViewImageItem::catchUp);
  emit viewChanged();
  if (view_) catchUp();
}

void ViewImageItem::setGround(const QColor& ground) {
  if (ground == ground_) return;
  ground_ = ground;
  emit groundChanged();
  repaint();
}

}  // namespace leafund
