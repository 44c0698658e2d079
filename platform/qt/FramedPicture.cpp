#include "platform/qt/FramedPicture.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "platform/qt/PicturePixels.h"
#include "platform/qt/QtValues.h"

namespace leafund {

QImage painted(const FramedPicture& picture, const std::stop_token& stop) {
  const CALayer& layer = picture.layer;
  const QRectF whole(QPointF(0, 0), picture.pixels);
  const double radius =
      std::min(layer.cornerRadius() * picture.scale, std::min(whole.width(), whole.height()) / 2);
  QPainterPath shape;
  shape.addRoundedRect(whole, radius, radius);
  QImage result(picture.pixels, QImage::Format_ARGB32_Premultiplied);
  if (result.isNull()) return result;
  result.fill(Qt::transparent);
  QPainter painter(&result);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.fillPath(shape, picture.ground);
  const QImage pixels =
      picture.image ? picturePixels(*picture.image, picture.pixels, picture.mode, stop) : QImage();
  // As a brush: a clipped picture would have hard edges.
  if (!pixels.isNull()) painter.fillPath(shape, QBrush(pixels));
  const double border = layer.borderWidth() * picture.scale;
  if (border > 0 && layer.borderColor()) {
    painter.setPen(QPen(qtColor(*layer.borderColor()), border));
    painter.setBrush(Qt::NoBrush);
    const double inset = border / 2;
    painter.drawRoundedRect(whole.adjusted(inset, inset, -inset, -inset), radius - inset,
                            radius - inset);
  }
  return result;
}

}  // namespace leafund
