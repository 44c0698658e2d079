#include "platform/graphics/PictureHeader.h"

#include "platform/graphics/FrameHeader.h"

namespace leafund {

namespace {

using Format = PictureHeader::Format;

constexpr std::uint32_t largestSide = 65535;

bool isSide(std::uint32_t side) { return side >= 1 && side <= largestSide; }

std::optional<PictureHeader> withinLimits(Format format, const FrameHeader& frame) {
  if (!isSide(frame.width) || !isSide(frame.height)) return std::nullopt;
  return PictureHeader{format, static_cast<int>(frame.width), static_cast<int>(frame.height),
                       frame.orientation};
}

}  // namespace

std::optional<PictureHeader> readPictureHeader(std::string_view body) {
  if (const auto frame = readJpeg(body)) return withinLimits(Format::JPEG, *frame);
  if (const auto frame = readPng(body)) return withinLimits(Format::PNG, *frame);
  if (const auto frame = readGif(body)) return withinLimits(Format::GIF, *frame);
  if (const auto frame = readWebP(body)) return withinLimits(Format::WebP, *frame);
  return std::nullopt;
}

}  // namespace leafund
