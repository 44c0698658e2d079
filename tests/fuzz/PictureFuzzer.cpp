#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "platform/graphics/PictureHeader.h"
#include "platform/qt/PicturePixels.h"
#include "tests/fuzz/Discoveries.h"
#include "tests/fuzz/Fuzzers.h"
#include "tests/fuzz/NeedApplication.h"
#include "tests/fuzz/Promise.h"
#include "tests/fuzz/Tally.h"

namespace leafund::fuzz {

namespace {

using Format = PictureHeader::Format;

// A larger picture says nothing new about its decoder, and takes long.
constexpr int mostPixelsDrawn = 16 * 1024;

const char* readerName(Format format) {
  switch (format) {
    case Format::JPEG:
      return "jpeg";
    case Format::PNG:
      return "png";
    case Format::GIF:
      return "gif";
    case Format::WebP:
      break;
  }
  return "webp";
}

// Whether the decoder, if it knows the size, knows the same. It does not believe a GIF that claims
// to be ten times the size of its first image, and more than 2,009 pixels.
bool decoderAgrees(const std::string& body, const PictureHeader& header) {
  constexpr int believed = 2009;
  if (header.format == Format::GIF && std::max(header.width, header.height) > believed) return true;
  // For what a chunk of a PNG claims it makes room, so it is shown the head alone, and that pixels
  // follow.
  constexpr std::size_t pngHead = 33;
  constexpr std::string_view noPixels("\0\0\0\0IDAT\x35\xAF\x06\x1E", 12);
  const bool png = header.format == Format::PNG;
  auto bytes = QByteArray::fromStdString(png ? body.substr(0, pngHead).append(noPixels) : body);
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer, readerName(header.format));
  reader.setAutoDetectImageFormat(false);
  const QSize said = reader.size();
  return !said.isValid() || said == QSize(header.width, header.height);
}

struct Drawn {
  QSize size;
  UIViewContentMode mode;
};

// Both ways of filling a view, smaller, larger and of other proportions than most pictures.
Drawn drawnAs(char lastByte) {
  constexpr std::array sides{1, 2, 7, 16, 25, 48, 64, 100};
  const auto choice = static_cast<unsigned char>(lastByte);
  return {
      {sides[choice & 7U], sides[(choice >> 3U) & 7U]},
      (choice & 64U) != 0 ? UIViewContentMode::ScaleAspectFill : UIViewContentMode::ScaleToFill};
}

// What the decoder made of the pixels, roughly: nothing, or one of 64 colours on an average.
unsigned look(const QImage& image) {
  if (image.isNull()) return 0;
  const QRgb colour =
      image.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixel(0, 0);
  const auto shade = [](int value) { return static_cast<unsigned>(value) >> 6U; };
  return 1 + shade(qRed(colour)) + 4 * shade(qGreen(colour)) + 16 * shade(qBlue(colour));
}

void isWhatWasAsked(const QImage& image, QSize size, Format format) {
  discovered(static_cast<unsigned>(format) * 100 + look(image));
  if (image.isNull()) return;
  promised(image.size() == size, "a picture is made at the size at which it is drawn");
  promised(image.format() == (format == Format::JPEG ? QImage::Format_RGB32
                                                     : QImage::Format_ARGB32_Premultiplied),
           "a picture's pixels have the kind that is said");
}

void draw(const UIImage& image, const PictureHeader& header, char lastByte) {
  const auto [size, mode] = drawnAs(lastByte);
  isWhatWasAsked(picturePixels(image, size, mode), size, header.format);
  const CGSize square{128, 128};
  const auto redrawn = UIImage::withDrawing(
      {.size = square,
       .opaque = false,
       .scale = 1,
       .strokes = {{image.shared_from_this(), {0, 0, square.width, square.height}}}});
  isWhatWasAsked(picturePixels(*redrawn, size, mode), size, header.format);
}

}  // namespace

void picture(std::string_view input) {
  needApplication();
  const auto header = readPictureHeader(input);
  const auto body = std::make_shared<const std::string>(input);
  const auto image = UIImage::initWithData(body);
  promised(header.has_value() == (image != nullptr), "the header alone says what is a picture");
  if (!header) return;
  CGSize size{1.0 * header->width, 1.0 * header->height};
  if (header->isTurned()) std::swap(size.width, size.height);
  promised(image->size() == size, "a picture has the size that its header says, upright");
  if (1LL * header->width * header->height > mostPixelsDrawn) return;
  promised(decoderAgrees(*body, *header), "the decoder reads the size as the header's reader does");
  static Tally drawn("drawn");
  drawn.add(1);
  draw(*image, *header, input.back());
}

}  // namespace leafund::fuzz
