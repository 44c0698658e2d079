#include "platform/graphics/ByteReader.h"
#include "platform/graphics/FrameHeader.h"

namespace leafund {

namespace {

// Marker codes of ITU-T T.81, table B.1.
constexpr std::uint8_t temporary = 0x01;
constexpr std::uint8_t firstRestart = 0xD0;
constexpr std::uint8_t startOfImage = 0xD8;
constexpr std::uint8_t endOfImage = 0xD9;
constexpr std::uint8_t startOfScan = 0xDA;
constexpr std::uint8_t exifApplication = 0xE1;

// Every kind of frame: which of them can be drawn is for the decoder to say.
bool isFrame(std::uint8_t marker) {
  constexpr std::uint8_t huffmanTables = 0xC4;
  constexpr std::uint8_t reserved = 0xC8;
  constexpr std::uint8_t arithmeticConditions = 0xCC;
  return marker >= 0xC0 && marker <= 0xCF && marker != huffmanTables && marker != reserved &&
         marker != arithmeticConditions;
}

bool standsAlone(std::uint8_t marker) {
  return marker == temporary || (marker >= firstRestart && marker <= startOfImage);
}

// Passes over fill bytes, and over stray bytes between segments as decoders do.
std::uint8_t nextMarker(ByteReader& bytes) {
  for (;;) {
    while (bytes.good() && bytes.byte() != 0xFF) {
    }
    std::uint8_t marker = bytes.byte();
    while (marker == 0xFF) marker = bytes.byte();
    if (marker != 0 || !bytes.good()) return marker;
  }
}

std::optional<FrameHeader> frameIn(ByteReader segment) {
  segment.byte();  // the bits of a sample
  FrameHeader frame{};
  frame.height = segment.big16();
  frame.width = segment.big16();
  return segment.good() ? std::optional(frame) : std::nullopt;
}

}  // namespace

std::optional<FrameHeader> readJpeg(std::string_view body) {
  if (!body.starts_with("\xFF\xD8\xFF")) return std::nullopt;
  ByteReader bytes{body.substr(2)};
  std::optional<FrameHeader> frame;
  int orientation = 1;
  for (;;) {
    const std::uint8_t marker = nextMarker(bytes);
    if (!bytes.good() || marker == startOfScan || marker == endOfImage) break;
    if (standsAlone(marker)) continue;
    const std::size_t length = bytes.big16();  // It counts its own two bytes, or tells nonsense.
    ByteReader segment{bytes.takeUpTo(length < 2 ? 0 : length - 2)};
    if (isFrame(marker) && !frame) frame = frameIn(segment);
    if (marker != exifApplication || orientation != 1) continue;
    if (segment.take(6) == std::string_view("Exif\0\0", 6)) {
      orientation = exifOrientation(segment.take(segment.left()));
    }
  }
  if (frame) frame->orientation = orientation;
  return frame;
}

}  // namespace leafund
