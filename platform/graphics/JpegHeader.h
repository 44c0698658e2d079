#pragma once

#include <optional>
#include <string_view>

#include "platform/graphics/ByteReader.h"

namespace leafund {

// Whether the first bytes are those of a JPEG; a body that begins so may still be broken.
bool beginsAsJpeg(std::string_view body);

// The size the header of a JPEG claims, or nothing when the header is not whole and readable up to
// the end of the first scan's header. The body begins as a JPEG.
std::optional<PixelSize> jpegSize(std::string_view body);

}  // namespace leafund
