#include "platform/graphics/ByteReader.h"
#include "platform/graphics/FrameHeader.h"

namespace leafund {

namespace {

// A TIFF file says by its first two bytes which end its numbers begin at.
class TiffReader {
 public:
  explicit TiffReader(std::string_view tiff) : tiff_(tiff), isBig_(tiff.starts_with("MM")) {}

  std::uint32_t number16(std::size_t at) const {
    ByteReader bytes = from(at);
    return isBig_ ? bytes.big16() : bytes.little16();
  }
  std::uint32_t number32(std::size_t at) const {
    ByteReader bytes = from(at);
    return isBig_ ? bytes.big32() : bytes.little32();
  }
  bool has(std::size_t at, std::size_t count) const {
    return at <= tiff_.size() && count <= tiff_.size() - at;
  }

 private:
  ByteReader from(std::size_t at) const {
    return ByteReader{at < tiff_.size() ? tiff_.substr(at) : std::string_view()};
  }

  std::string_view tiff_;
  bool isBig_;
};

}  // namespace

int exifOrientation(std::string_view exif) {
  constexpr std::uint32_t orientationTag = 0x0112;
  constexpr std::uint32_t shortNumber = 3;
  constexpr std::size_t entryBytes = 12;
  if (exif.starts_with(std::string_view("Exif\0\0", 6))) exif.remove_prefix(6);
  const TiffReader tiff(exif);
  if (!exif.starts_with("II") && !exif.starts_with("MM")) return 1;
  const std::size_t directory = tiff.number32(4);
  const std::uint32_t entries = tiff.number16(directory);
  for (std::uint32_t entry = 0; entry < entries; ++entry) {
    const std::size_t at = directory + 2 + entry * entryBytes;
    if (!tiff.has(at, entryBytes)) return 1;
    if (tiff.number16(at) != orientationTag || tiff.number16(at + 2) != shortNumber) continue;
    const std::uint32_t value = tiff.number16(at + 8);
    return value >= 1 && value <= 8 ? static_cast<int>(value) : 1;
  }
  return 1;
}

}  // namespace leafund
