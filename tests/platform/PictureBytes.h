#pragma once

#include <zlib.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// Writes picture files piece by piece, so that a test can leave out or break one piece. The pixel
// data is a token: no test of headers looks at it.
namespace leafund::picturebytes {

inline std::string byte(unsigned value) { return {static_cast<char>(value & 255)}; }
inline std::string big16(unsigned value) { return byte(value >> 8) + byte(value); }
inline std::string big32(unsigned value) { return big16(value >> 16) + big16(value); }
inline std::string little16(unsigned value) { return byte(value) + byte(value >> 8); }

// JPEG.

inline const std::string jpegStart = "\xFF\xD8";

inline std::string segment(unsigned marker, std::string_view content) {
  return "\xFF" + byte(marker) + big16(static_cast<unsigned>(content.size()) + 2) +
         std::string{content};
}

inline std::string quantisation(unsigned slot = 0) {
  return segment(0xDB, byte(slot) + std::string(64, '\1'));
}

// One code of one bit, which is the smallest table there is.
inline std::string huffman(unsigned kindAndSlot) {
  return segment(0xC4, byte(kindAndSlot) + byte(1) + std::string(15, '\0') + byte(0));
}

inline std::string frame(unsigned marker, unsigned width, unsigned height, unsigned components = 1,
                         unsigned precision = 8, unsigned sampling = 0x11) {
  std::string content = byte(precision) + big16(height) + big16(width) + byte(components);
  for (unsigned at = 1; at <= components; ++at) content += byte(at) + byte(sampling) + byte(0);
  return segment(marker, content);
}

inline std::string scan(unsigned components = 1, unsigned last = 63) {
  std::string content = byte(components);
  for (unsigned at = 1; at <= components; ++at) content += byte(at) + byte(0);
  return segment(0xDA, content + byte(0) + byte(last) + byte(0));
}

inline std::string jpeg(unsigned width, unsigned height) {
  return jpegStart + segment(0xE0, "JFIF") + quantisation() + frame(0xC0, width, height) +
         huffman(0x00) + huffman(0x10) + scan() + "\x55";
}

// PNG.

inline const std::string pngStart = "\x89PNG\r\n\x1A\n";

inline std::string chunk(std::string_view name, std::string_view data) {
  const std::string nameAndData = std::string{name} + std::string{data};
  const auto* first = reinterpret_cast<const Bytef*>(nameAndData.data());
  const auto checksum = static_cast<unsigned>(crc32_z(0, first, nameAndData.size()));
  return big32(static_cast<unsigned>(data.size())) + nameAndData + big32(checksum);
}

inline std::string imageHeader(unsigned width, unsigned height, unsigned depth = 8,
                               unsigned colourType = 2) {
  return chunk(
      "IHDR", big32(width) + big32(height) + byte(depth) + byte(colourType) + std::string(3, '\0'));
}

inline std::string png(unsigned width, unsigned height) {
  return pngStart + imageHeader(width, height) + chunk("IDAT", "pixels") + chunk("IEND", "");
}

// GIF.

inline std::string screen(unsigned width, unsigned height, unsigned flags = 0) {
  return little16(width) + little16(height) + byte(flags) + std::string(2, '\0');
}

inline std::string frameAt(unsigned left, unsigned top, unsigned width, unsigned height,
                           unsigned flags = 0) {
  return "\x2C" + little16(left) + little16(top) + little16(width) + little16(height) + byte(flags);
}

inline const std::string gifPixels = byte(2) + byte(1) + byte(0x44) + byte(0);

inline std::string gif(unsigned width, unsigned height) {
  return "GIF89a" + screen(width, height) + frameAt(0, 0, width, height) + gifPixels + "\x3B";
}

}  // namespace leafund::picturebytes
