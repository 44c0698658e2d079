#pragma once

#include <optional>
#include <string_view>

#include "platform/graphics/ByteReader.h"

namespace leafund {

// Whether the first bytes are those of a PNG; a body that begins so may still be broken.
bool beginsAsPng(std::string_view body);

// The size the header of a PNG claims, or nothing when the header is not whole and readable up to
// the beginning of the pixel data. The body begins as a PNG.
std::optional<PixelSize> pngSize(std::string_view body);

// The beginning of a PNG, up to the first chunk that is not there whole. A decoder takes room for
// all that such a chunk announces, up to 2 GB, before it looks for the bytes.
std::string_view pngWholeChunks(std::string_view body);

}  // namespace leafund
