#include "platform/graphics/GifHeader.h"

namespace leafund {

namespace {

constexpr std::uint8_t extensionIntroducer = 0x21;
constexpr std::uint8_t imageSeparator = 0x2C;

void skipColourTable(ByteReader& bytes, std::uint8_t flags) {
  const bool present = (flags & 0x80) != 0;
  if (present) bytes.take(std::size_t{3} << ((flags & 7) + 1));
}

// Leaves the reader behind the separator of the first image; false when none comes.
bool findFirstImage(ByteReader& bytes) {
  while (bytes.good()) {
    const std::uint8_t block = bytes.byte();
    if (!bytes.good()) return false;
    if (block == imageSeparator) return true;
    if (block != extensionIntroducer) return false;
    bytes.byte();  // Which extension it is does not matter: all are skipped alike.
    while (const std::uint8_t length = bytes.byte()) bytes.take(length);
  }
  return false;
}

bool pixelsBegin(ByteReader& bytes) {
  constexpr std::uint8_t widestCode = 12;
  const std::uint8_t codeSize = bytes.byte();
  bytes.byte();  // The length of the first block of data.
  bytes.byte();  // And its first byte.
  return bytes.good() && codeSize <= widestCode;
}

}  // namespace

bool beginsAsGif(std::string_view body) {
  return body.starts_with("GIF87a") || body.starts_with("GIF89a");
}

std::optional<PixelSize> gifSize(std::string_view body) {
  ByteReader bytes{body.substr(6)};
  PixelSize screen{bytes.little16(), 0};
  screen.height = bytes.little16();
  const std::uint8_t screenFlags = bytes.byte();
  bytes.take(2);  // The background colour and the shape of a pixel.
  skipColourTable(bytes, screenFlags);
  if (!findFirstImage(bytes)) return std::nullopt;
  const std::uint32_t left = bytes.little16();
  const std::uint32_t top = bytes.little16();
  const std::uint32_t width = bytes.little16();
  const std::uint32_t height = bytes.little16();
  skipColourTable(bytes, bytes.byte());
  if (!pixelsBegin(bytes)) return std::nullopt;
  // Some writers leave the screen's size out; decoders then take the extent of the first image.
  if (screen.width == 0) screen.width = left + width;
  if (screen.height == 0) screen.height = top + height;
  return screen;
}

}  // namespace leafund
