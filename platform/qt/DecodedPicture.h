#pragma once

#include <QImage>
#include <QSize>
#include <cstddef>
#include <stop_token>
#include <string_view>

#include "platform/qt/ColourTransform.h"

namespace leafund {

// What a decoder makes of a body: pixels as they are stored, neither upright nor in sRGB yet.
struct DecodedPicture {
  QImage pixels;  // Null when nothing can be made of it.
  ColourTransform toSRgb;
};

// Decoding is bounded by counts and not by time, so that a body looks the same on every machine.
// All memory for one picture, in bytes; a picture that needs more is null.
inline constexpr long long kMostPictureBytes = 256'000'000;
// All rows of a PNG, uncompressed, in bytes; one that has more is null.
inline constexpr std::size_t kMostPngBytes = 350'000'000;
// The bytes of a lossy WebP that are decoded, which take as long as the largest JPEG.
inline constexpr std::size_t kMostWebPBytes = 32'000'000;
// In pixels: each scan of a JPEG counts its own, and each byte counts as some. The rest is left
// out.
inline constexpr long long kMostJpegWork = 600'000'000;

// At a size that is no smaller than `enough`, in pixels, unless the picture is, and not much
// larger. RGB32; grey where a body that was cut short says nothing.
DecodedPicture decodeJpeg(std::string_view body, QSize enough, const std::stop_token& stop);

// Whole, of an animation the first picture on its canvas. ARGB32; transparent where a body that was
// cut short says nothing. `size` is what the header tells.
DecodedPicture decodePng(std::string_view body, const std::stop_token& stop);
DecodedPicture decodeGif(std::string_view body, const std::stop_token& stop);
DecodedPicture decodeWebP(std::string_view body, QSize size, const std::stop_token& stop);

}  // namespace leafund
