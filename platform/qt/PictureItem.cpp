#include "platform/qt/PictureItem.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "platform/qt/PicturePixels.h"

namespace leafund {

void PictureItem::catchUp() {
  const auto& look = view()->look();
  if (look.image == image_ && look.layer == layer_) return;
  image_ = look.image;
  layer_ = look.layer;
  repaint();
}

QImage PictureItem::paint(QSize pixels, double scale) {
  const QRectF whole(QPointF(0, 0), pixels);
  const double radius =
      std::min(layer_.cornerRadius() * scale, std::min(whole.width(), whole.height()) / 2);
  QPainterPath shape;
  shape.addRoundedRect(whole, radius, radius);
  QImage result(pixels, QImage::Format_ARGB32_Premultiplied);
  result.fill(Qt::transparent);
  QPainter painter(&result);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.fillPath(shape, ground());
  const auto mode = view() ? view()->look().contentMode : UIViewContentMode::ScaleToFill;
  const QImage picture = image_ ? picturePixels(*image_, pixels, mode) : QImage();
  // As a brush: a clipped picture would have hard edges.
  if (!picture.isNull()) painter.fillPath(shape, QBrush(picture));
  const double border = layer_.borderWidth() * scale;
  if (border > 0 && layer_.borderColor()) {
    painter.setPen(QPen(qtColor(*layer_.borderColor()), border));
    painter.setBrush(Qt::NoBrush);
    const double inset = border / 2;
    painter.drawRoundedRect(whole.adjusted(inset, inset, -inset, -inset), radius - inset,
                            radius - inset);
  }
  return result;
}

}  // namespace leafund
