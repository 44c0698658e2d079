#include "platform/graphics/JpegTables.h"

#include <algorithm>
#include <string_view>

namespace leafund {

namespace {

// The rest of one table. Leaves the reader not good when the table is cut short or too long, and is
// false when its codes do not fit their lengths or a symbol makes no sense.
bool readHuffmanTable(ByteReader& segment, bool ofDc) {
  std::size_t codes = 0;
  long unused = 1;  // Codes of the present length that no shorter code has taken.
  bool fits = true;
  for (int bits = 1; bits <= 16; ++bits) {
    const std::uint8_t count = segment.byte();
    unused = 2 * unused - count;
    fits = fits && unused >= 0;
    codes += count;
  }
  constexpr std::size_t mostCodes = 256;
  const std::string_view symbols =
      segment.take(codes <= mostCodes ? codes : std::string_view::npos);
  // A DC symbol is a number of bits, and there are at most 15.
  return fits && (!ofDc || std::all_of(symbols.begin(), symbols.end(), [](char symbol) {
           return static_cast<unsigned char>(symbol) <= 15;
         }));
}

}  // namespace

bool JpegTables::readQuantisation(ByteReader& segment) {
  while (!segment.atEnd()) {
    const std::uint8_t precisionAndSlot = segment.byte();
    const std::size_t slot = precisionAndSlot & 15;
    const bool wide = precisionAndSlot >> 4 != 0;
    if (slot >= slots) return false;
    segment.take(wide ? 128 : 64);
    quantisation_[slot] = true;
  }
  return segment.good();
}

bool JpegTables::readHuffman(ByteReader& segment) {
  while (!segment.atEnd()) {
    const std::uint8_t kindAndSlot = segment.byte();
    const std::size_t kind = kindAndSlot >> 4;
    const std::size_t slot = kindAndSlot & 15;
    if (kind > 1 || slot >= slots) return false;
    const bool usable = readHuffmanTable(segment, kind == 0);
    huffman_[kind][slot] = usable ? State::Usable : State::Broken;
  }
  return segment.good();
}

bool JpegTables::hasHuffman(HuffmanClass kind, std::size_t slot) const {
  return slot < slots && huffman_[static_cast<std::size_t>(kind)][slot] == State::Usable;
}

void JpegTables::assumeUsualHuffman() {
  for (auto& kind : huffman_) {
    for (std::size_t slot = 0; slot < 2; ++slot) {
      if (kind[slot] == State::Absent) kind[slot] = State::Usable;
    }
  }
}

}  // namespace leafund
