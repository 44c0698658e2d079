#pragma once

#include <webp/encode.h>

#include <QImage>
#include <string>
#include <string_view>

#include "tests/platform/PictureBytes.h"

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

// The pixels of a lossy picture in eight parts, all but the last of them followed by so many bytes
// that say nothing.
inline std::string lossyPartsOf(const QImage& picture, std::size_t padding) {
  WebPConfig config;
  WebPConfigInit(&config);
  config.partitions = 3;  // as a power of two; more than one are made by the quick methods alone
  config.method = 2;
  WebPPicture encoded;
  WebPPictureInit(&encoded);
  encoded.width = picture.width();
  encoded.height = picture.height();
  const QImage rgb = picture.convertToFormat(QImage::Format_RGB888);
  WebPPictureImportRGB(&encoded, rgb.bits(), static_cast<int>(rgb.bytesPerLine()));
  std::string file;
  encoded.custom_ptr = &file;
  encoded.writer = [](const uint8_t* bytes, std::size_t length, const WebPPicture* to) {
    static_cast<std::string*>(to->custom_ptr)->append(reinterpret_cast<const char*>(bytes), length);
    return 1;
  };
  WebPEncode(&config, &encoded);
  WebPPictureFree(&encoded);

  // RFC 6386, 9.1 and 9.5: behind the head and the first partition stand the lengths of all but the
  // last part, and then the parts.
  const std::string_view data = std::string_view(file).substr(20);
  const auto number24 = [&](std::size_t at) {
    const auto at8 = [&](std::size_t i) { return static_cast<unsigned char>(data[at + i]); };
    return at8(0) | at8(1) << 8U | at8(2) << 16U;
  };
  const std::size_t lengths = 10 + (number24(0) >> 5U);
  std::string parts;
  std::string result(data.substr(0, lengths));
  std::size_t at = lengths + std::size_t{7} * 3;
  for (std::size_t part = 0; part < 7; ++part) {
    const std::size_t length = number24(lengths + part * 3);
    parts.append(data.substr(at, length)).append(padding, '\0');
    result += picturebytes::little24(static_cast<unsigned>(length + padding));
    at += length;
  }
  return result + parts.append(data.substr(at));
}

}  // namespace leafund
