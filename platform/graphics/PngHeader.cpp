#include "platform/graphics/PngHeader.h"

#include <algorithm>

namespace leafund {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view signature = "\x89PNG\r\n\x1A\n"sv;
constexpr std::uint8_t paletteColours = 3;

// The CRC of ISO 3309, which PNG takes over: bit by bit, since the chunks before the pixels are
// short.
std::uint32_t checksumOf(std::string_view bytes) {
  constexpr std::uint32_t polynomial = 0xEDB88320;
  std::uint32_t checksum = 0xFFFFFFFF;
  for (const char byte : bytes) {
    checksum ^= static_cast<std::uint8_t>(byte);
    for (int bit = 0; bit < 8; ++bit)
      checksum = (checksum >> 1) ^ (polynomial & (0U - (checksum & 1U)));
  }
  return ~checksum;
}

struct Chunk {
  std::string_view name;
  std::string_view data;
  std::string_view nameAndData;
  std::uint32_t checksum;

  // Its checksum is right. Summed only where it is asked: a chunk to pass over may be long.
  bool intact() const { return checksumOf(nameAndData) == checksum; }

  bool isNamed() const {
    return std::all_of(name.begin(), name.end(), [](char letter) {
      return (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z');
    });
  }

  // By its name, a decoder that does not know the chunk may pass over it.
  bool isAncillary() const { return (name.front() & 0x20) != 0; }
};

// The chunk at the reader, whose length has been read; the reader is not good when it is cut short.
Chunk readChunk(ByteReader& bytes, std::size_t length) {
  const std::string_view nameAndData = bytes.take(4 + length);
  const std::uint32_t checksum = bytes.big32();
  if (!bytes.good()) return {"\0\0\0\0"sv, {}, {}, checksum};
  return {nameAndData.substr(0, 4), nameAndData.substr(4), nameAndData, checksum};
}

bool isDepthOfColourType(std::uint8_t depth, std::uint8_t colourType) {
  switch (colourType) {
    case 0:  // Grey.
      return depth == 1 || depth == 2 || depth == 4 || depth == 8 || depth == 16;
    case paletteColours:
      return depth == 1 || depth == 2 || depth == 4 || depth == 8;
    case 2:  // Colour.
    case 4:  // Grey with alpha.
    case 6:  // Colour with alpha.
      return depth == 8 || depth == 16;
    default:
      return false;
  }
}

struct ImageHeader {
  PixelSize size;
  std::uint8_t colourType;
};

std::optional<ImageHeader> readImageHeader(ByteReader& bytes) {
  constexpr std::size_t length = 13;
  if (bytes.big32() != length) return std::nullopt;
  const Chunk chunk = readChunk(bytes, length);
  if (!chunk.intact() || chunk.name != "IHDR") return std::nullopt;
  ByteReader data{chunk.data};
  ImageHeader header{};
  header.size.width = data.big32();
  header.size.height = data.big32();
  const std::uint8_t depth = data.byte();
  header.colourType = data.byte();
  const std::uint8_t compression = data.byte();
  const std::uint8_t filter = data.byte();
  const std::uint8_t interlace = data.byte();
  if (!isDepthOfColourType(depth, header.colourType)) return std::nullopt;
  if (compression != 0 || filter != 0 || interlace > 1) return std::nullopt;
  return header;
}

bool isPalette(const Chunk& chunk) {
  const std::size_t size = chunk.data.size();
  return chunk.name == "PLTE" && size > 0 && size <= 256 * 3 && size % 3 == 0;
}

// Walks the chunks between the image header and the pixel data, of which only a palette must be
// understood: colours given by number cannot be drawn without it.
bool pixelsBegin(ByteReader& bytes, bool needsPalette) {
  constexpr std::uint32_t longestChunk = 0x7FFFFFFF;
  for (;;) {
    const std::uint32_t length = bytes.big32();
    if (length > longestChunk) return false;
    if (ByteReader{bytes}.take(4) == "IDAT") {
      return !needsPalette;
    }
    const Chunk chunk = readChunk(bytes, length);
    if (!chunk.isNamed()) return false;
    if (chunk.isAncillary()) continue;
    if (!chunk.intact() || !isPalette(chunk)) return false;
    needsPalette = false;
  }
}

}  // namespace

bool beginsAsPng(std::string_view body) { return body.starts_with(signature); }

std::string_view pngWholeChunks(std::string_view body) {
  constexpr std::size_t around = 12;  // its length, its name and its checksum
  std::size_t end = signature.size();
  for (;;) {
    ByteReader chunk{body.substr(end)};
    const std::size_t length = chunk.big32();
    if (!chunk.good() || body.size() - end < around + length) return body.substr(0, end);
    end += around + length;
  }
}

std::optional<PixelSize> pngSize(std::string_view body) {
  ByteReader bytes{body.substr(signature.size())};
  const auto header = readImageHeader(bytes);
  if (!header || !pixelsBegin(bytes, header->colourType == paletteColours)) return std::nullopt;
  return header->size;
}

}  // namespace leafund
