#include "platform/graphics/PictureHeader.h"

#include <cstdint>

#include "platform/graphics/GifHeader.h"
#include "platform/graphics/JpegHeader.h"
#include "platform/graphics/PngHeader.h"

namespace leafund {

namespace {

using Format = PictureHeader::Format;

constexpr std::uint32_t largestSide = 16384;
constexpr std::uint64_t mostPixelBytes = 128ULL * 1024 * 1024;

std::optional<PictureHeader> withinLimits(Format format, std::optional<PixelSize> size) {
  if (!size || size->width == 0 || size->height == 0) return std::nullopt;
  if (size->width > largestSide || size->height > largestSide) return std::nullopt;
  if (4ULL * size->width * size->height > mostPixelBytes) return std::nullopt;
  return PictureHeader{format, static_cast<int>(size->width), static_cast<int>(size->height)};
}

}  // namespace

std::optional<PictureHeader> readPictureHeader(std::string_view body) {
  if (beginsAsJpeg(body)) return withinLimits(Format::JPEG, jpegSize(body));
  if (beginsAsPng(body)) return withinLimits(Format::PNG, pngSize(body));
  if (beginsAsGif(body)) return withinLimits(Format::GIF, gifSize(body));
  return std::nullopt;
}

}  // namespace leafund
