#pragma once

#include <optional>
#include <string_view>

namespace leafund {

// What a picture's header tells. Sizes are in pixels, as stored: no rotation is applied.
struct PictureHeader {
  enum class Format { JPEG, PNG, GIF };

  Format format;
  int width;
  int height;
};

// The header of the picture in `body`, or nothing when the body is no picture. It is one when its
// first bytes are those of a JPEG, PNG or GIF and everything up to the pixel data is whole and
// readable. The pixel data is not looked at, so a download that was cut short there is a picture
// still. Sides are 1 to 16,384 pixels, and the pixels, at 4 bytes each, take at most 128 MB: a
// small body can claim any size, and a claim must not cost memory.
//
// Every host answers by this rule and not by what its own decoder takes. It asks for what ordinary
// decoders can do: of JPEG (ITU-T T.81) the 8-bit Huffman frames, sequential or progressive, in 1,
// 3 or 4 components. Takes time in proportion to the header's length, and no memory.
std::optional<PictureHeader> readPictureHeader(std::string_view body);

}  // namespace leafund
