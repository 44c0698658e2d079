#include "platform/graphics/ByteReader.h"
#include "platform/graphics/FrameHeader.h"

namespace leafund {

namespace {

// RFC 9649, 2.5: a canvas, and what cameras say behind its frames.
std::optional<FrameHeader> extended(ByteReader chunk, ByteReader others) {
  chunk.take(4);  // which other chunks there are
  FrameHeader canvas{};
  canvas.width = 1 + chunk.little24();
  canvas.height = 1 + chunk.little24();
  if (!chunk.good()) return std::nullopt;
  for (int part = 0; part < kMostParts && others.good(); ++part) {
    const std::string_view name = others.take(4);
    const std::size_t length = others.little32();
    const std::string_view data = others.take(length);
    others.take(length % 2);
    if (name != "EXIF") continue;
    canvas.orientation = exifOrientation(data);
    break;
  }
  return canvas;
}

// The head of a key frame, RFC 6386, 9.1.
std::optional<FrameHeader> lossy(ByteReader chunk) {
  chunk.take(3);
  if (chunk.take(3) != "\x9D\x01\x2A") return std::nullopt;
  FrameHeader frame{};
  frame.width = chunk.little16() & 0x3FFF;
  frame.height = chunk.little16() & 0x3FFF;
  return chunk.good() ? std::optional(frame) : std::nullopt;
}

// RFC 9649, 3.4.
std::optional<FrameHeader> lossless(ByteReader chunk) {
  if (chunk.byte() != 0x2F) return std::nullopt;
  const std::uint32_t sides = chunk.little32();
  FrameHeader frame{};
  frame.width = 1 + (sides & 0x3FFF);
  frame.height = 1 + (sides >> 14 & 0x3FFF);
  return chunk.good() ? std::optional(frame) : std::nullopt;
}

}  // namespace

std::optional<FrameHeader> readWebP(std::string_view body) {
  if (!body.starts_with("RIFF")) return std::nullopt;
  ByteReader bytes{body};
  bytes.take(8);
  if (bytes.take(4) != "WEBP") return std::nullopt;
  const std::string_view name = bytes.take(4);
  const std::size_t length = bytes.little32();
  const ByteReader chunk{bytes.takeUpTo(length)};
  if (name == "VP8X") return extended(chunk, bytes);
  if (name == "VP8 ") return lossy(chunk);
  if (name == "VP8L") return lossless(chunk);
  return std::nullopt;
}

}  // namespace leafund
