#include "platform/graphics/ByteReader.h"
#include "platform/graphics/FrameHeader.h"

namespace leafund {

namespace {

// Cameras' words may stand behind the pixels, too.
int orientationIn(ByteReader chunks) {
  for (int part = 0; part < kMostParts && chunks.good(); ++part) {
    const std::size_t length = chunks.big32();
    const std::string_view name = chunks.take(4);
    const std::string_view data = chunks.take(length);
    chunks.take(4);  // the checksum
    if (name == "eXIf") return exifOrientation(data);
  }
  return 1;
}

}  // namespace

std::optional<FrameHeader> readPng(std::string_view body) {
  using namespace std::string_view_literals;
  constexpr auto signature = "\x89PNG\r\n\x1A\n"sv;
  if (!body.starts_with(signature)) return std::nullopt;
  ByteReader bytes{body.substr(signature.size())};
  const ByteReader chunks = bytes;
  bytes.take(4);  // the length of the first chunk
  if (bytes.take(4) != "IHDR") return std::nullopt;
  FrameHeader frame{};
  frame.width = bytes.big32();
  frame.height = bytes.big32();
  if (!bytes.good()) return std::nullopt;
  frame.orientation = orientationIn(chunks);
  return frame;
}

}  // namespace leafund
