#include "platform/graphics/FrameHeader.h"
#include "platform/graphics/JpegSegments.h"

namespace leafund {

namespace {

// Every kind of frame: which of them can be drawn is for the decoder to say.
bool isFrame(std::uint8_t marker) {
  constexpr std::uint8_t huffmanTables = 0xC4;
  constexpr std::uint8_t reserved = 0xC8;
  constexpr std::uint8_t arithmeticConditions = 0xCC;
  return marker >= 0xC0 && marker <= 0xCF && marker != huffmanTables && marker != reserved &&
         marker != arithmeticConditions;
}

std::optional<FrameHeader> frameIn(std::string_view segment) {
  ByteReader bytes{segment};
  bytes.byte();  // the bits of a sample
  FrameHeader frame{};
  frame.height = bytes.big16();
  frame.width = bytes.big16();
  return bytes.good() ? std::optional(frame) : std::nullopt;
}

}  // namespace

std::optional<FrameHeader> readJpeg(std::string_view body) {
  constexpr std::uint8_t exifApplication = 0xE1;
  constexpr std::string_view exif("Exif\0\0", 6);
  if (!body.starts_with("\xFF\xD8\xFF")) return std::nullopt;
  std::optional<FrameHeader> frame;
  std::optional<int> orientation;  // by the first Exif, as a body can hold millions of its entries
  JpegSegments segments(body);
  while (const auto segment = segments.next()) {
    const auto& [marker, content] = *segment;
    if (isFrame(marker) && !frame) frame = frameIn(content);
    if (marker == exifApplication && !orientation && content.starts_with(exif)) {
      orientation = exifOrientation(content);
    }
  }
  if (frame) frame->orientation = orientation.value_or(1);
  return frame;
}

}  // namespace leafund
