#pragma once

#include <QtQmlIntegration/qqmlintegration.h>

#include <vector>

#include "interface/qml/bridge/PlainBridge.h"
#include "interface/qml/items/ViewImageItem.h"

namespace leafund {

// The cards that lie behind a row, with their shadows, on the ground of the list. Opaque, so that
// nothing beneath it has to be drawn. A card keeps the width that the screen had when it was laid
// down; in the window each spans the row, so that a list stays whole when its window is widened.
// Their shadows lie beyond the row at both sides.
class CardItem : public leafund::ViewImageItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(leafund::PlainBridge* view READ view WRITE setView NOTIFY viewChanged REQUIRED FINAL)

 public:
  using ViewImageItem::ViewImageItem;

  PlainBridge* view() const { return static_cast<PlainBridge*>(followed()); }
  void setView(PlainBridge* view) { follow(view); }

 protected:
  QImage paint(QSize pixels, double scale) override;
  QRectF imageRect() const override;  // with the shadow at both sides
  void catchUp() override;

 private:
  // An image and all that it depends on.
  struct Painted {
    std::vector<CardLook> looks;
    QColor ground;
    QColor white;
    QSize pixels;
    double scale = 0;
    QImage image;
    bool isOf(const CardItem& item, QSize size, double scaled) const;
  };

  QImage painted(QSize pixels, double scale) const;

  std::vector<CardLook> looks_;  // of width 0: each spans the row
};

}  // namespace leafund
