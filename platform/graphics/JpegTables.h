#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "platform/graphics/ByteReader.h"

namespace leafund {

// Which of a JPEG's tables can be used by now. A slot may be written again; the last table counts.
class JpegTables {
 public:
  static constexpr std::size_t slots = 4;
  enum class HuffmanClass { DC = 0, AC = 1 };

  // Each takes the content of one segment, and is false when that is not whole.
  bool readQuantisation(ByteReader& segment);
  bool readHuffman(ByteReader& segment);

  bool hasQuantisation(std::size_t slot) const { return slot < slots && quantisation_[slot]; }
  bool hasHuffman(HuffmanClass kind, std::size_t slot) const;

  // Motion pictures leave out the usual tables (T.81, annex K), which decoders know by heart: slots
  // 0 and 1 of a sequential frame then hold them.
  void assumeUsualHuffman();

 private:
  // A broken table is an error only where it is used.
  enum class State { Absent, Broken, Usable };

  std::array<bool, slots> quantisation_{};
  std::array<std::array<State, slots>, 2> huffman_{};
};

}  // namespace leafund
