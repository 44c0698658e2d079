#include "platform/qt/PicturePixels.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/graphics/PictureHeader.h"
#include "platform/qt/DecodedPicture.h"

namespace leafund {

namespace {

// How large the whole picture is drawn, of which the pixels asked for show the middle.
QSizeF wholeSize(CGSize picture, QSize pixels, UIViewContentMode mode) {
  if (mode == UIViewContentMode::ScaleToFill) return pixels;
  const double scale = std::max(pixels.width() / picture.width, pixels.height() / picture.height);
  return {std::max(picture.width * scale, 1.0 * pixels.width()),
          std::max(picture.height * scale, 1.0 * pixels.height())};
}

// `size` in whole pixels, and no larger than the picture, whose pixels say no more than they do.
QSize decodedSize(QSizeF size, QSize most) {
  const auto side = [](double length, int longest) {
    return static_cast<int>(std::clamp(std::round(length), 1.0, 1.0 * longest));
  };
  return {side(size.width(), most.width()), side(size.height(), most.height())};
}

QSize ownPixels(const UIImage& image) {
  const auto side = [&image](double points) {
    return static_cast<int>(std::clamp(std::round(points * image.scale()), 1.0, 16384.0));
  };
  return {side(image.size().width), side(image.size().height)};
}

// Of a picture of which only the middle shows, at the size `whole`, what is cut off goes before
// anything else is made of it: at its full length it would take the memory a second time, and
// turned a third. Whole pixels go, as many from either end, and `whole` shrinks with them.
void cutToSight(QImage& picture, QSizeF& whole, QSizeF pixels) {
  const auto cut = [](int length, double drawn, double shown) {
    return std::max(0, static_cast<int>((length - shown * length / drawn) / 2));
  };
  const int across = cut(picture.width(), whole.width(), pixels.width());
  const int down = cut(picture.height(), whole.height(), pixels.height());
  if (across + down == 0) return;
  const QRect rest = picture.rect().adjusted(across, down, -across, -down);
  whole = {whole.width() * rest.width() / picture.width(),
           whole.height() * rest.height() / picture.height()};
  picture = picture.copy(rest);
}

// Smaller, in the colours that every screen is taken to show.
QImage scaledInSRgb(DecodedPicture decoded, QSize size) {
  // In its place, which scaling would do in a copy.
  if (decoded.pixels.hasAlphaChannel()) {
    decoded.pixels.convertTo(QImage::Format_ARGB32_Premultiplied);
  }
  QImage scaled = decoded.pixels.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  if (scaled.isNull() || decoded.toSRgb.isNone()) return scaled;
  scaled.convertTo(scaled.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
  for (int y = 0; y < scaled.height(); ++y) {
    decoded.toSRgb.apply(reinterpret_cast<QRgb*>(scaled.scanLine(y)),
                         static_cast<unsigned>(scaled.width()));
  }
  return scaled;
}

DecodedPicture decoded(const std::string& body, const PictureHeader& header, QSize enough,
                       const std::stop_token& stop) {
  switch (header.format) {
    case PictureHeader::Format::JPEG:
      return decodeJpeg(body, enough, stop);
    case PictureHeader::Format::PNG:
      return decodePng(body, stop);
    case PictureHeader::Format::GIF:
      return decodeGif(body, stop);
    case PictureHeader::Format::WebP:
      return decodeWebP(body, {header.width, header.height}, stop);
  }
  return {};
}

// Turned and mirrored as its header says: from 5 on the stored columns are the upright rows.
QImage upright(QImage picture, int orientation) {
  if (orientation >= 5) {
    const auto format = picture.format();
    picture = picture.transformed(QTransform(0, 1, 1, 0, 0, 0));
    picture.convertTo(format);  // Qt gives what it turns an alpha channel
  }
  const bool isUpsideDown =
      orientation == 3 || orientation == 4 || orientation == 7 || orientation == 8;
  const bool isMirrored =
      orientation == 2 || orientation == 3 || orientation == 6 || orientation == 7;
  return isMirrored || isUpsideDown ? picture.mirrored(isMirrored, isUpsideDown) : picture;
}

// The middle of a picture that is drawn at the size `whole`, of which it may be a smaller version.
QImage middle(const QImage& picture, QSizeF whole, QSize pixels) {
  if (picture.isNull() || picture.size() == pixels) return picture;
  const QSizeF shown(pixels.width() * picture.width() / whole.width(),
                     pixels.height() * picture.height() / whole.height());
  const QPointF corner((picture.width() - shown.width()) / 2,
                       (picture.height() - shown.height()) / 2);
  if (shown.toSize() == pixels) return picture.copy({corner.toPoint(), pixels});
  QImage result(pixels, picture.format());
  if (result.isNull()) return result;
  result.fill(Qt::transparent);
  QPainter painter(&result);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(QRectF(QPointF(), pixels), picture, {corner, shown});
  return result;
}

QImage bodyPixels(const std::string& body, QSize pixels, UIViewContentMode mode,
                  const std::stop_token& stop) {
  const auto header = readPictureHeader(body);
  if (!header) return {};
  const QSize stored(header->width, header->height);
  // Turned last of all, when it is smallest.
  const QSize frame = header->isTurned() ? pixels.transposed() : pixels;
  QSizeF whole = wholeSize({1.0 * stored.width(), 1.0 * stored.height()}, frame, mode);
  DecodedPicture found = decoded(body, *header, decodedSize(whole, stored), stop);
  if (found.pixels.isNull() || stop.stop_requested()) return {};
  cutToSight(found.pixels, whole, frame);
  const QSize size = decodedSize(whole, found.pixels.size());
  QImage picture = scaledInSRgb(std::move(found), size);
  const bool isJpeg = header->format == PictureHeader::Format::JPEG;
  picture.convertTo(isJpeg ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
  return upright(middle(picture, whole, frame), header->orientation);
}

// Whether the drawing is one picture over all of it, as a resize makes it.
bool isOnePicture(const Drawing& drawing) {
  return drawing.strokes.size() == 1 && !drawing.opaque &&
         drawing.strokes[0].rect == CGRect{0, 0, drawing.size.width, drawing.size.height};
}

QImage stretched(const UIImage& image, QSizeF size, const std::stop_token& stop) {
  return picturePixels(image, decodedSize(size, ownPixels(image)), UIViewContentMode::ScaleToFill,
                       stop);
}

QImage drawingPixels(const Drawing& drawing, QSize pixels, UIViewContentMode mode,
                     const std::stop_token& stop) {
  if (drawing.size.width <= 0 || drawing.size.height <= 0) return {};
  const QSizeF whole = wholeSize(drawing.size, pixels, mode);
  if (isOnePicture(drawing)) {
    return middle(stretched(*drawing.strokes[0].image, whole, stop), whole, pixels);
  }
  QImage canvas(pixels, QImage::Format_ARGB32_Premultiplied);
  if (canvas.isNull()) return canvas;
  canvas.fill(drawing.opaque ? Qt::black : Qt::transparent);
  const double across = whole.width() / drawing.size.width;
  const double down = whole.height() / drawing.size.height;
  QPainter painter(&canvas);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.translate((pixels.width() - whole.width()) / 2, (pixels.height() - whole.height()) / 2);
  painter.setClipRect(QRectF(QPointF(), whole));
  for (const auto& stroke : drawing.strokes) {
    const CGRect& rect = stroke.rect;
    const QRectF target(rect.x * across, rect.y * down, rect.width * across, rect.height * down);
    const QImage picture = stretched(*stroke.image, target.size(), stop);
    if (!picture.isNull()) painter.drawImage(target, picture);
  }
  return canvas;
}

}  // namespace

QImage picturePixels(const UIImage& image, QSize pixels, UIViewContentMode mode,
                     const std::stop_token& stop) {
  if (pixels.isEmpty()) return {};
  return image.drawing() ? drawingPixels(*image.drawing(), pixels, mode, stop)
                         : bodyPixels(*image.body(), pixels, mode, stop);
}

}  // namespace leafund
