#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace leafund {

// Reads a file format's numbers from bytes it does not own. Reading past the end gives zeros and
// leaves the reader no longer good, for ever: one question after several reads is enough.
class ByteReader {
 public:
  explicit ByteReader(std::string_view bytes) : rest_{bytes} {}

  bool good() const { return good_; }
  std::size_t left() const { return rest_.size(); }

  std::string_view take(std::size_t count) {
    if (count > rest_.size()) {
      good_ = false;
      rest_ = {};
      return {};
    }
    const std::string_view taken = rest_.substr(0, count);
    rest_.remove_prefix(count);
    return taken;
  }

  // What there is of so many bytes; where there are fewer, the reader stays good.
  std::string_view takeUpTo(std::size_t count) { return take(count < left() ? count : left()); }

  // Over what stands before the next such byte, or over all there is.
  void skipTo(char byte) { takeUpTo(rest_.find(byte)); }

  std::uint8_t byte() {
    const std::string_view taken = take(1);
    return taken.empty() ? std::uint8_t{0} : static_cast<std::uint8_t>(taken.front());
  }

  std::uint32_t big16() {
    const std::uint32_t high = byte();
    return high << 8 | byte();
  }

  std::uint32_t big32() {
    const std::uint32_t high = big16();
    return high << 16 | big16();
  }

  std::uint32_t little16() {
    const std::uint32_t low = byte();
    return low | static_cast<std::uint32_t>(byte()) << 8;
  }

  std::uint32_t little24() {
    const std::uint32_t low = little16();
    return low | static_cast<std::uint32_t>(byte()) << 16;
  }

  std::uint32_t little32() {
    const std::uint32_t low = little16();
    return low | little16() << 16;
  }

 private:
  std::string_view rest_;
  bool good_ = true;
};

}  // namespace leafund
