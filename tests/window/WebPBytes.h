#pragma once

#include <webp/encode.h>

#include <QImage>
#include <string>

namespace leafund {

// A quality of 100 is without loss.
inline std::string webpOf(const QImage& picture, int quality) {
  const QImage rgba = picture.convertToFormat(QImage::Format_RGBA8888);
  const int width = rgba.width();
  const int height = rgba.height();
  const int stride = static_cast<int>(rgba.bytesPerLine());
  uint8_t* bytes = nullptr;
  const std::size_t length =
      quality == 100
          ? WebPEncodeLosslessRGBA(rgba.bits(), width, height, stride, &bytes)
          : WebPEncodeRGBA(rgba.bits(), width, height, stride, static_cast<float>(quality), &bytes);
  std::string body(reinterpret_cast<const char*>(bytes), length);
  WebPFree(bytes);
  return body;
}

}  // namespace leafund
