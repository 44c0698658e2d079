#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace leafund {

// A side length as a file format can claim it: not checked for sense, zero included.
struct PixelSize {
  std::uint32_t width;
  std::uint32_t height;
};

// Reads a file format's numbers from bytes it does not own. Reading past the end gives zeros and
// leaves the reader no longer good, for ever: one question after several reads is enough.
class ByteReader {
 public:
  explicit ByteReader(std::string_view bytes) : rest_{bytes} {}

  bool good() const { return good_; }
  bool atEnd() const { return rest_.empty(); }
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

 private:
  std::string_view rest_;
  bool good_ = true;
};

}  // namespace leafund
