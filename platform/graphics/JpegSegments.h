#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/graphics/ByteReader.h"

namespace leafund {

struct JpegSegment {
  std::uint8_t marker;       // its code in ITU-T T.81, table B.1
  std::string_view content;  // behind its length, and as far as the body goes
};

// Goes through what stands before the first scan of a JPEG, as decoders do: over fill bytes, stray
// bytes and markers without a segment.
class JpegSegments {
 public:
  // `body` begins as a JPEG, and outlives what is found in it.
  explicit JpegSegments(std::string_view body) : bytes_{body.substr(2)} {}

  // Nothing when there are no more, or kMostParts markers were read.
  std::optional<JpegSegment> next();

 private:
  std::uint8_t nextMarker();

  ByteReader bytes_;
  int markers_ = 0;
};

// The colour profile of a JPEG, put together from its segments; empty when it has none, or when a
// part is missing or there twice.
std::string jpegProfile(std::string_view body);

}  // namespace leafund
