#include <QPainter>
#include <algorithm>

#include "platform/graphics/ByteReader.h"
#include "platform/qt/DecodedPicture.h"
#include "platform/qt/WebPLibrary.h"

namespace leafund {

namespace {

// ARGB32 is a number, whose bytes lie by the machine's order.
constexpr WEBP_CSP_MODE kArgb32 = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? MODE_BGRA : MODE_ARGB;

// What is needed of the chunks of a WebP, or of a frame of one (RFC 9649, 2.7).
struct Chunks {
  std::string_view profile;
  std::string_view firstFrame;   // Empty when nothing moves.
  bool isLossy = false;          // The pixels, whatever their alpha channel is.
  bool isLossless = false;       // The pixels or their alpha channel.
  std::size_t beforePixels = 0;  // How many bytes stand before those of the first still picture.
};

Chunks chunksOf(std::string_view chunks) {
  ByteReader bytes{chunks};
  Chunks found;
  found.beforePixels = chunks.size();
  while (bytes.good() && found.firstFrame.empty()) {
    const std::string_view name = bytes.take(4);
    const std::size_t length = bytes.little32();
    if (!bytes.good()) break;
    if (found.beforePixels == chunks.size() && (name == "VP8 " || name == "VP8L")) {
      found.beforePixels = chunks.size() - bytes.left();
    }
    const std::string_view data = bytes.takeUpTo(length);
    if (name == "ICCP") found.profile = data;
    if (name == "ANMF") found.firstFrame = data;
    if (name == "VP8 ") found.isLossy = true;
    if (name == "VP8L" || name == "ALPH") found.isLossless = true;
    bytes.takeUpTo(length % 2);
  }
  return found;
}

// What is taken for a pixel: the result, and what libwebp keeps beside it, which is a few rows of
// lossy pixels and all of lossless ones (406 MB for 48 megapixels, 207 MB for as many lossy ones).
constexpr int kLossyBytes = 5;
constexpr int kLosslessBytes = 9;

// Behind each of so many pieces of a body a stop is looked for.
constexpr std::size_t kPieces = 64;

struct Still {
  std::string_view bytes;
  Chunks chunks;
  QSize size;
};

// What can be made of it, which is transparent where it is cut short.
QImage stillPixels(const WebPLibrary& webp, const Still& still, const std::stop_token& stop) {
  const int bytesAPixel = still.chunks.isLossless ? kLosslessBytes : kLossyBytes;
  if (1LL * bytesAPixel * still.size.width() * still.size.height() > kMostPictureBytes) return {};
  QImage pixels(still.size, QImage::Format_ARGB32);
  if (pixels.isNull()) return {};
  pixels.fill(Qt::transparent);
  auto* const decoder =
      webp.newRgb(kArgb32, pixels.bits(), static_cast<size_t>(pixels.sizeInBytes()),
                  static_cast<int>(pixels.bytesPerLine()));
  if (decoder == nullptr) return {};
  const auto* const first = reinterpret_cast<const uint8_t*>(still.bytes.data());
  // It goes through all chunks before the pixels until it is given the first of these.
  std::size_t given = still.chunks.beforePixels;
  const std::size_t rest = still.bytes.size() - given;
  const std::size_t all = given + (still.chunks.isLossy ? std::min(rest, kMostWebPBytes) : rest);
  const std::size_t piece = rest / kPieces + 1;
  auto status = VP8_STATUS_SUSPENDED;
  while (given < all && status == VP8_STATUS_SUSPENDED && !stop.stop_requested()) {
    given = std::min(given + piece, all);
    status = webp.update(decoder, first, given);
  }
  webp.remove(decoder);
  return pixels;
}

// The first picture of an animation, where it lies on its canvas.
QImage framePixels(const WebPLibrary& webp, std::string_view frame, QSize canvasSize,
                   const std::stop_token& stop) {
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
  const std::string_view still = bytes.take(bytes.left());
  const QImage pixels = stillPixels(webp, {still, chunksOf(still), place.size()}, stop);
  QImage canvas(canvasSize, QImage::Format_ARGB32);
  if (pixels.isNull() || canvas.isNull()) return {};
  canvas.fill(Qt::transparent);
  QPainter(&canvas).drawImage(place.topLeft(), pixels);
  return canvas;
}

}  // namespace

DecodedPicture decodeWebP(std::string_view body, QSize size, const std::stop_token& stop) {
  constexpr std::size_t headBytes = 12;
  const auto library = loaded<WebPLibrary>();
  if (!library->isThere()) return {};
  Chunks chunks = chunksOf(body.substr(headBytes));
  chunks.beforePixels += headBytes;
  DecodedPicture decoded;
  decoded.pixels = chunks.firstFrame.empty() ? stillPixels(*library, {body, chunks, size}, stop)
                                             : framePixels(*library, chunks.firstFrame, size, stop);
  if (!chunks.profile.empty()) {
    decoded.toSRgb = ColourTransform::ofProfile(chunks.profile, ColourTransform::Pixels::Colours);
  }
  return decoded;
}

}  // namespace leafund
