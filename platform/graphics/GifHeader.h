#pragma once

#include <optional>
#include <string_view>

#include "platform/graphics/ByteReader.h"

namespace leafund {

// Whether the first bytes are those of a GIF; a body that begins so may still be broken.
bool beginsAsGif(std::string_view body);

// The size the header of a GIF claims, or nothing when the header is not whole and readable up to
// the first byte of pixel data, which its decoders need to begin. The body begins as a GIF.
std::optional<PixelSize> gifSize(std::string_view body);

}  // namespace leafund
