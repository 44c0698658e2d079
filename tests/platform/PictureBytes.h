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
inline std::string little24(unsigned value) { return little16(value) + byte(value >> 16); }
inline std::string little32(unsigned value) { return little16(value) + little16(value >> 16); }

// Exif: what a camera says, with one entry. `big` begins numbers at their big end.
inline std::string exif(unsigned orientation, bool big = false, unsigned tag = 0x0112,
                        unsigned type = 3) {
  const auto number16 = big ? big16 : little16;
  const auto number32 = big ? big32 : little32;
  return (big ? "MM" : "II") + number16(42) + number32(8) + number16(1) + number16(tag) +
         number16(type) + number32(1) + number16(orientation) + number16(0) + number32(0);
}

// JPEG.

inline const std::string jpegStart = "\xFF\xD8";

inline std::string segment(unsigned marker, std::string_view content) {
  return "\xFF" + byte(marker) + big16(static_cast<unsigned>(content.size()) + 2) +
         std::string{content};
}

inline std::string frame(unsigned marker, unsigned width, unsigned height) {
  return segment(marker,
                 byte(8) + big16(height) + big16(width) + byte(1) + byte(1) + byte(0x11) + byte(0));
}

inline std::string scan() {
  return segment(0xDA, byte(1) + byte(1) + byte(0) + byte(0) + byte(63) + byte(0));
}

inline std::string exifSegment(const std::string& content) {
  return segment(0xE1, std::string("Exif\0\0", 6) + content);
}

inline std::string jpeg(unsigned width, unsigned height, const std::string& before = "") {
  return jpegStart + segment(0xE0, "JFIF") + before + frame(0xC0, width, height) + scan() + "\x55";
}

// PNG.

inline const std::string pngStart = "\x89PNG\r\n\x1A\n";

inline std::string chunk(std::string_view name, std::string_view data) {
  const std::string nameAndData = std::string{name} + std::string{data};
  const auto* first = reinterpret_cast<const Bytef*>(nameAndData.data());
  const auto checksum = static_cast<unsigned>(crc32_z(0, first, nameAndData.size()));
  return big32(static_cast<unsigned>(data.size())) + nameAndData + big32(checksum);
}

inline std::string imageHeader(unsigned width, unsigned height) {
  return chunk("IHDR", big32(width) + big32(height) + byte(8) + byte(2) + std::string(3, '\0'));
}

inline std::string png(unsigned width, unsigned height) {
  return pngStart + imageHeader(width, height) + chunk("IDAT", "pixels") + chunk("IEND", "");
}

// GIF.

inline std::string gif(unsigned width, unsigned height) {
  return "GIF89a" + little16(width) + little16(height) + std::string(3, '\0') + "\x3B";
}

// WebP.

inline std::string riffChunk(std::string_view name, const std::string& data) {
  return std::string{name} + little32(static_cast<unsigned>(data.size())) + data +
         std::string(data.size() % 2, '\0');
}

inline std::string webp(const std::string& chunks) {
  return "RIFF" + little32(static_cast<unsigned>(chunks.size()) + 4) + "WEBP" + chunks;
}

inline std::string lossyWebP(unsigned width, unsigned height) {
  return webp(riffChunk("VP8 ", std::string(3, '\0') + "\x9D\x01\x2A" + little16(width) +
                                    little16(height) + "pixels"));
}

inline std::string losslessWebP(unsigned width, unsigned height) {
  return webp(riffChunk("VP8L", "\x2F" + little32((width - 1) | (height - 1) << 14) + "pixels"));
}

inline std::string extendedWebP(unsigned width, unsigned height, const std::string& others = "") {
  return webp(riffChunk("VP8X", little32(0) + little24(width - 1) + little24(height - 1)) + others);
}

}  // namespace leafund::picturebytes
