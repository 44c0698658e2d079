#pragma once

#include <optional>
#include <string_view>

namespace leafund {

// What a picture's header tells.
struct PictureHeader {
  enum class Format { JPEG, PNG, GIF, WebP };

  Format format;
  // In pixels, as stored: of the frame, and of a GIF the canvas.
  int width;
  int height;
  // As Exif counts the ways to turn and mirror a stored picture until it is upright: 1 to 8, and 1
  // is as it is.
  int orientation = 1;

  // Whether its sides change places when it is upright.
  bool isTurned() const { return orientation >= 5; }
};

// The header of the picture in `body`, or nothing when the body is no picture. It is one when its
// first bytes are those of a JPEG, PNG, GIF or WebP, and the size can be read and is 1 to 65,535
// pixels a side. Nothing else is looked at: what cannot be drawn of a picture is for its decoder to
// find, and stops nothing.
//
// Every host answers by this rule and not by what its own decoder takes. Takes time in proportion
// to the number of the body's markers or chunks, of which the first million are looked at, and no
// memory.
std::optional<PictureHeader> readPictureHeader(std::string_view body);

}  // namespace leafund
