#pragma once

#include <QtQmlIntegration/qqmlintegration.h>

#include <QColor>

#include "interface/qml/items/ImageItem.h"

namespace leafund {

// An icon of interface/icons in one colour, its grid of 24 by 24 stretched to the item's size.
class IconItem : public leafund::ImageItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(Icon icon READ icon WRITE setIcon NOTIFY iconChanged REQUIRED FINAL)
  Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged REQUIRED FINAL)

 public:
  // By the names of the files: HillFar is hill-far.svg.
  enum Icon {
    Leaf,
    Search,
    SearchFilled,
    Heart,
    HeartFilled,
    Sprout,
    SproutFilled,
    Paper,
    PaperFilled,
    Back,
    Forward,
    Alert,
    HillFar,
    HillNear,
    Corner
  };
  Q_ENUM(Icon)
  using ImageItem::ImageItem;

  Icon icon() const { return icon_; }
  void setIcon(Icon icon);
  QColor color() const { return color_; }
  void setColor(const QColor& color);

 signals:
  void iconChanged();
  void colorChanged();

 protected:
  QImage paint(QSize pixels, double scale) override;

 private:
  Icon icon_ = Leaf;
  QColor color_ = Qt::black;
};

}  // namespace leafund
