#include "interface/qml/items/IconItem.h"

#include <QPainter>
#include <QPainterPath>

namespace leafund {

namespace {

constexpr double kGrid = 24;
constexpr double kStroke = 2;

// Filled and stroked parts of a sign, in grid units.
struct Sign {
  QPainterPath filled;
  QPainterPath stroked;
};

// A leaf whose tip points to the upper right.
QPainterPath leafBlade() {
  QPainterPath blade(QPointF(21, 3));
  blade.cubicTo(11, 3, 4, 7, 4, 14);
  blade.cubicTo(4, 17, 6, 20, 10, 20);
  blade.cubicTo(17, 20, 21, 13, 21, 3);
  return blade;
}

Sign leaf() {
  Sign sign;
  sign.filled = leafBlade();
  QPainterPath vein(QPointF(15, 9));
  vein.quadTo(10, 13, 8, 16);
  QPainterPath gap = QPainterPath(QPointF(15.6, 8.4));
  gap.quadTo(9.5, 12.5, 7.2, 16.4);
  gap.quadTo(11, 13.6, 15.6, 8.4);
  sign.filled = sign.filled.subtracted(gap);
  sign.stroked.moveTo(7, 17);
  sign.stroked.lineTo(3, 22);
  return sign;
}

Sign search() {
  Sign sign;
  sign.stroked.addEllipse(QPointF(10.5, 10.5), 6.5, 6.5);
  sign.stroked.moveTo(15.5, 15.5);
  sign.stroked.lineTo(21, 21);
  return sign;
}

Sign heart() {
  Sign sign;
  sign.stroked.moveTo(12, 20.5);
  sign.stroked.cubicTo(4, 14.5, 2.5, 11, 3, 8.2);
  sign.stroked.cubicTo(3.8, 3.6, 9.6, 2.8, 12, 7);
  sign.stroked.cubicTo(14.4, 2.8, 20.2, 3.6, 21, 8.2);
  sign.stroked.cubicTo(21.5, 11, 20, 14.5, 12, 20.5);
  return sign;
}

Sign sprout() {
  Sign sign;
  sign.stroked.moveTo(12, 21);
  sign.stroked.lineTo(12, 12);
  sign.stroked.moveTo(12, 14);
  sign.stroked.cubicTo(6, 14, 4, 11, 4, 6);
  sign.stroked.cubicTo(9, 6, 12, 9, 12, 14);
  sign.stroked.moveTo(12, 11);
  sign.stroked.cubicTo(12, 6, 15, 3.5, 20, 3.5);
  sign.stroked.cubicTo(20, 8.5, 17, 11, 12, 11);
  return sign;
}

Sign paper() {
  Sign sign;
  sign.stroked.addRoundedRect(QRectF(4, 4, 16, 16), 2, 2);
  sign.stroked.moveTo(8, 9);
  sign.stroked.lineTo(16, 9);
  sign.stroked.moveTo(8, 12.5);
  sign.stroked.lineTo(16, 12.5);
  sign.stroked.moveTo(8, 16);
  sign.stroked.lineTo(13, 16);
  return sign;
}

Sign polyline(std::initializer_list<QPointF> points) {
  Sign sign;
  sign.stroked.moveTo(*points.begin());
  for (const auto& point : points) sign.stroked.lineTo(point);
  return sign;
}

Sign flag() {
  Sign sign = polyline({{6, 22}, {6, 3}, {20, 3}, {16, 8.5}, {20, 14}, {6, 14}});
  sign.filled.addPolygon(QPolygonF({{6, 3}, {20, 3}, {16, 8.5}, {20, 14}, {6, 14}}));
  return sign;
}

Sign alert() {
  Sign sign;
  sign.stroked.addEllipse(QPointF(12, 12), 9, 9);
  sign.stroked.moveTo(12, 7.5);
  sign.stroked.lineTo(12, 12.5);
  sign.filled.addEllipse(QPointF(12, 16.4), 1.3, 1.3);
  return sign;
}

// A line of hills from edge to edge, filled down to the foot.
Sign hills(QPointF left, QPointF firstPull, QPointF saddle, QPointF secondPull, QPointF right) {
  Sign sign;
  sign.filled.moveTo(left);
  sign.filled.quadTo(firstPull, saddle);
  sign.filled.quadTo(secondPull, right);
  sign.filled.lineTo(kGrid, kGrid);
  sign.filled.lineTo(0, kGrid);
  return sign;
}

// What a rounded upper left corner leaves of its square.
Sign corner() {
  Sign sign;
  sign.filled.lineTo(kGrid, 0);
  sign.filled.arcTo(QRectF(0, 0, 2 * kGrid, 2 * kGrid), 90, 90);
  return sign;
}

Sign signOf(IconItem::Icon icon) {
  switch (icon) {
    case IconItem::Leaf:
      return leaf();
    case IconItem::Search:
      return search();
    case IconItem::Heart:
      return heart();
    case IconItem::Sprout:
      return sprout();
    case IconItem::Paper:
      return paper();
    case IconItem::Back:
      return polyline({{15, 5}, {8, 12}, {15, 19}});
    case IconItem::Flag:
      return flag();
    case IconItem::Alert:
      return alert();
    case IconItem::HillFar:
      return hills({0, 15}, {6, 11}, {12, 13}, {19, 15}, {24, 6});
    case IconItem::HillNear:
      return hills({0, 8}, {7, 4}, {13, 10}, {19, 16}, {24, 10});
    case IconItem::Corner:
      return corner();
  }
  return {};
}

}  // namespace

void IconItem::setIcon(Icon icon) {
  if (icon == icon_) return;
  icon_ = icon;
  emit iconChanged();
  repaint();
}

void IconItem::setColor(const QColor& color) {
  if (color == color_) return;
  color_ = color;
  emit colorChanged();
  repaint();
}

QImage IconItem::paint(QSize pixels, double) {
  QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(pixels.width() / kGrid, pixels.height() / kGrid);
  const Sign sign = signOf(icon_);
  painter.fillPath(sign.filled, color_);
  painter.strokePath(sign.stroked,
                     QPen(color_, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  return image;
}

}  // namespace leafund
