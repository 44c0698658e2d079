#include "platform/graphics/JpegSegments.h"

#include "platform/graphics/FrameHeader.h"

namespace leafund {

namespace {

constexpr std::uint8_t stuffed = 0x00;  // behind 0xFF it makes no marker
constexpr std::uint8_t temporary = 0x01;
constexpr std::uint8_t firstRestart = 0xD0;
constexpr std::uint8_t startOfImage = 0xD8;
constexpr std::uint8_t endOfImage = 0xD9;
constexpr std::uint8_t startOfScan = 0xDA;

bool standsAlone(std::uint8_t marker) {
  return marker == stuffed || marker == temporary ||
         (marker >= firstRestart && marker <= startOfImage);
}

}  // namespace

std::optional<JpegSegment> JpegSegments::next() {
  while (markers_ < kMostParts) {
    ++markers_;
    const std::uint8_t marker = nextMarker();
    if (!bytes_.good() || marker == startOfScan || marker == endOfImage) break;
    if (standsAlone(marker)) continue;
    const std::size_t length = bytes_.big16();  // It counts its own two bytes, or tells nonsense.
    return JpegSegment{marker, bytes_.takeUpTo(length < 2 ? 0 : length - 2)};
  }
  markers_ = kMostParts;
  return std::nullopt;
}

std::uint8_t JpegSegments::nextMarker() {
  bytes_.skipTo('\xFF');
  std::uint8_t marker = bytes_.byte();
  while (marker == 0xFF) marker = bytes_.byte();
  return marker;
}

}  // namespace leafund
