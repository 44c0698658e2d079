#include "interface/qml/items/IconItem.h"

#include <QPainter>

#include "interface/qml/items/IconPaths.h"

namespace leafund {

namespace {

constexpr double kGrid = 24;
constexpr double kStroke = 2;

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
  const IconPaths paths = pathsOf(icon_);
  painter.fillPath(paths.filled, color_);
  painter.strokePath(paths.stroked,
                     QPen(color_, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  return image;
}

}  // namespace leafund
