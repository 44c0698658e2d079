#include "platform/graphics/ByteReader.h"
#include "platform/graphics/FrameHeader.h"

namespace leafund {

std::optional<FrameHeader> readGif(std::string_view body) {
  if (!body.starts_with("GIF8")) return std::nullopt;
  ByteReader bytes{body};
  bytes.take(6);  // "GIF8" and a version that decoders do not mind
  FrameHeader canvas{};
  canvas.width = bytes.little16();
  canvas.height = bytes.little16();
  return bytes.good() ? std::optional(canvas) : std::nullopt;
}

}  // namespace leafund
