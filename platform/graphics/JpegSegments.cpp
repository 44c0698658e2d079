#include "platform/graphics/JpegSegments.h"

#include <array>

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

std::string jpegProfile(std::string_view body) {
  constexpr std::uint8_t profileApplication = 0xE2;
  constexpr std::string_view name("ICC_PROFILE\0", 12);
  std::array<std::optional<std::string_view>, 256> parts;
  std::size_t count = 0;
  JpegSegments segments(body);
  while (const auto segment = segments.next()) {
    if (segment->marker != profileApplication || !segment->content.starts_with(name)) continue;
    ByteReader bytes{segment->content.substr(name.size())};
    const std::size_t number = bytes.byte();
    const std::size_t of = bytes.byte();
    if (!bytes.good()) continue;
    if (number == 0 || number > of || parts[number] || (count != 0 && of != count)) return {};
    parts[number] = bytes.take(bytes.left());
    count = of;
  }
  std::string profile;
  for (std::size_t number = 1; number <= count; ++number) {
    if (!parts[number]) return {};
    profile += *parts[number];
  }
  return profile;
}

}  // namespace leafund
