#include <QPainter>

#include "platform/graphics/ByteReader.h"
#include "platform/qt/DecodedPicture.h"
#include "platform/qt/WebPLibrary.h"

namespace leafund {

namespace {

// ARGB32 is a number, whose bytes lie by the machine's order.
constexpr WEBP_CSP_MODE kArgb32 = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? MODE_BGRA : MODE_ARGB;

// What is needed of the chunks of a WebP (RFC 9649, 2.7).
struct Chunks {
  std::string_view profile;
  std::string_view firstFrame;  // Empty when nothing moves.
  bool isLossy = true;          // Without a lossless part, which an alpha channel is, too.
};

Chunks chunksOf(std::string_view body) {
  ByteReader bytes{body};
  bytes.take(12);
  Chunks found;
  while (bytes.good() && found.firstFrame.empty()) {
    const std::string_view name = bytes.take(4);
    const std::size_t length = bytes.little32();
    if (!bytes.good()) break;
    const std::string_view data = bytes.takeUpTo(length);
    if (name == "ICCP") found.profile = data;
    if (name == "ANMF") found.firstFrame = data;
    if (name == "VP8L" || name == "ALPH") found.isLossy = false;
    bytes.takeUpTo(length % 2);
  }
  return found;
}

// What is taken for a pixel: the result, and what libwebp keeps beside it, which is a few rows of
// lossy pixels and all of lossless ones (406 MB for 48 megapixels, 207 MB for as many lossy ones).
constexpr int kLossyBytes = 5;
constexpr int kLosslessBytes = 9;

// What can be made of the bytes, which are transparent where they are cut short.
QImage stillPixels(const WebPLibrary& webp, std::string_view bytes, QSize size, int bytesAPixel) {
  if (1LL * bytesAPixel * size.width() * size.height() > kMostPictureBytes) return {};
  QImage pixels(size, QImage::Format_ARGB32);
  if (pixels.isNull()) return {};
  pixels.fill(Qt::transparent);
  auto* const decoder =
      webp.newRgb(kArgb32, pixels.bits(), static_cast<size_t>(pixels.sizeInBytes()),
                  static_cast<int>(pixels.bytesPerLine()));
  if (decoder == nullptr) return {};
  webp.update(decoder, reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
  webp.remove(decoder);
  return pixels;
}

// The first picture of an animation, where it lies on its canvas.
QImage framePixels(const WebPLibrary& webp, std::string_view frame, QSize canvasSize) {
  ByteReader bytes{frame};
  const auto number = [&bytes] { return static_cast<int>(bytes.little24()); };
  const int x = 2 * number();
  const int y = 2 * number();
  const int width = 1 + number();
  const int height = 1 + number();
  bytes.take(4);  // how long it is seen, and what becomes of it
  const QRect place(x, y, width, height);
  const bool isInside = bytes.good() && QRect(QPoint(), canvasSize).contains(place);
  if (!isInside ||
      (4LL + kLosslessBytes) * canvasSize.width() * canvasSize.height() > kMostPictureBytes)
    return {};
  const QImage pixels = stillPixels(webp, bytes.take(bytes.left()), place.size(), kLosslessBytes);
  QImage canvas(canvasSize, QImage::Format_ARGB32);
  if (pixels.isNull() || canvas.isNull()) return {};
  canvas.fill(Qt::transparent);
  QPainter(&canvas).drawImage(place.topLeft(), pixels);
  return canvas;
}

}  // namespace

DecodedPicture decodeWebP(std::string_view body, QSize size) {
  const WebPLibrary& webp = WebPLibrary::get();
  if (!webp.isThere()) return {};
  const auto [profile, firstFrame, isLossy] = chunksOf(body);
  DecodedPicture decoded;
  decoded.pixels = firstFrame.empty()
                       ? stillPixels(webp, body, size, isLossy ? kLossyBytes : kLosslessBytes)
                       : framePixels(webp, firstFrame, size);
  if (!profile.empty()) {
    decoded.toSRgb = ColourTransform::ofProfile(profile, ColourTransform::Pixels::Colours);
  }
  return decoded;
}

}  // namespace leafund
