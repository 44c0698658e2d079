#include "tests/window/FaultBodies.h"

#include <zlib.h>

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <cstdint>
#include <stdexcept>
#include <string_view>

namespace leafund::bodies {

namespace {

constexpr QSize kSize{96, 96};

std::string written(const QImage& image, const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!QImageWriter(&buffer, format).write(image)) throw std::runtime_error("not written");
  return bytes.toStdString();
}

QImage filled(QColor colour, QImage::Format format = QImage::Format_RGB32) {
  QImage image(kSize, format);
  image.fill(colour);
  return image;
}

// The colour above, and noise below, which is hard to pack: most of the bytes are those of the
// lower third.
QImage restless(QColor colour) {
  QImage image = filled(colour);
  std::uint32_t state = 1;
  for (int y = kSize.height() * 2 / 3; y < kSize.height(); ++y) {
    for (int x = 0; x < kSize.width(); ++x) {
      state = state * 1664525U + 1013904223U;
      image.setPixel(x, y, state >> 8);
    }
  }
  return image;
}

std::string firstThreeQuarters(const std::string& body) {
  return body.substr(0, body.size() * 3 / 4);
}

std::string big32(std::uint32_t value) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift & 255);
  return bytes;
}

std::size_t found(const std::string& body, std::string_view bytes) {
  const std::size_t at = body.find(bytes);
  if (at == std::string::npos) throw std::runtime_error("the body is of another make");
  return at;
}

// Writes the checksum of the image header anew, which stands 17 bytes behind its name's beginning.
void vouchForHeader(std::string& png, std::size_t name) {
  constexpr std::size_t length = 4 + 13;
  const auto sum = crc32(0, reinterpret_cast<const Bytef*>(png.data() + name), length);
  png.replace(name + length, 4, big32(static_cast<std::uint32_t>(sum)));
}

}  // namespace

std::string jpeg(QColor colour) { return written(filled(colour), "jpeg"); }

std::string png(QColor colour) { return written(filled(colour), "png"); }

std::string deepPng(QColor colour) { return written(filled(colour, QImage::Format_RGBX64), "png"); }

// A palette of the colour and of red, and two pictures of one pixel, each a second long.
std::string animatedGif(QColor colour) {
  const auto channel = [](int value) { return static_cast<char>(value); };
  const auto picture = [](char code) {
    return std::string("\x21\xF9\x04\0\x64\0\0\0", 8) +                  // how long it is seen
           std::string("\x2C\0\0\0\0\x01\0\x01\0\0\x02\x02", 12) + code  // where it lies
           + std::string("\x01\0", 2);
  };
  std::string body("GIF89a\x01\0\x01\0\x80\0\0", 13);
  body += {channel(colour.red()), channel(colour.green()), channel(colour.blue())};
  body += std::string("\xFF\0\0", 3);
  body += std::string("\x21\xFF\x0BNETSCAPE2.0\x03\x01\0\0\0", 19);  // over and over again
  return body + picture('\x44') + picture('\x4C') + ";";
}

std::string cutJpeg(QColor colour) { return firstThreeQuarters(written(restless(colour), "jpeg")); }

std::string cutPng(QColor colour) { return firstThreeQuarters(written(restless(colour), "png")); }

std::string pngWithBadHeader() {
  std::string body = png(Qt::red);
  body[found(body, "IHDR") + 4 + 3] ^= 1;  // one pixel wider than the checksum says
  return body;
}

std::string pngWithBadPixels() {
  std::string body = png(Qt::red);
  const std::size_t pixels = found(body, "IDAT") + 4;
  for (std::size_t at = pixels; at < pixels + 8; ++at) body[at] = static_cast<char>(~body[at]);
  return body;
}

std::string hugeJpeg() {
  std::string body = jpeg(Qt::red);
  body.replace(found(body, "\xFF\xC0") + 5, 4, "\xFD\xE8\xFD\xE8");
  return body;
}

std::string hugePng() {
  std::string body = png(Qt::red);
  const std::size_t name = found(body, "IHDR");
  body.replace(name + 4, 8, big32(65'000) + big32(65'000));
  vouchForHeader(body, name);
  return body;
}

std::string errorPage() {
  return "<!DOCTYPE html><html><head><title>Sorry</title></head><body>Not here.</body></html>";
}

std::string drawingOfAFile() {
  return "<?xml version='1.0'?><svg xmlns='http://www.w3.org/2000/svg' width='96' height='96'>"
         "<image href='file:///etc/hostname' width='96' height='96'/></svg>";
}

std::string zeros() { return std::string(4096, '\0'); }

}  // namespace leafund::bodies
