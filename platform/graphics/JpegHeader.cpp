#include "platform/graphics/JpegHeader.h"

#include <array>
#include <utility>

#include "platform/graphics/JpegTables.h"

namespace leafund {

namespace {

// Marker codes of ITU-T T.81, table B.1.
constexpr std::uint8_t temporary = 0x01;
constexpr std::uint8_t baselineFrame = 0xC0;
constexpr std::uint8_t extendedFrame = 0xC1;
constexpr std::uint8_t progressiveFrame = 0xC2;
constexpr std::uint8_t huffmanTables = 0xC4;
constexpr std::uint8_t firstRestart = 0xD0;
constexpr std::uint8_t lastRestart = 0xD7;
constexpr std::uint8_t startOfScan = 0xDA;
constexpr std::uint8_t quantisationTables = 0xDB;
constexpr std::uint8_t numberOfLines = 0xDC;
constexpr std::uint8_t restartInterval = 0xDD;
constexpr std::uint8_t firstApplication = 0xE0;
constexpr std::uint8_t lastApplication = 0xEF;
constexpr std::uint8_t comment = 0xFE;

struct Component {
  std::uint8_t identifier;
  std::uint8_t horizontal;  // Sampling factors.
  std::uint8_t vertical;
  std::uint8_t quantisation;
};

// What a scan asks of its components' Huffman tables.
struct Band {
  bool sensible;
  bool needsDc;
  bool needsAc;
};

// Walks the marker segments up to the first scan, and keeps what the scan needs.
class HeaderWalk {
 public:
  explicit HeaderWalk(std::string_view afterStart) : bytes_{afterStart} {}

  std::optional<PixelSize> sizeAtFirstScan() {
    for (;;) {
      const std::uint8_t marker = nextMarker();
      if (!bytes_.good()) return std::nullopt;
      if (standsAlone(marker)) continue;
      const std::uint32_t length = bytes_.big16();  // It counts its own two bytes.
      if (length < 2) return std::nullopt;
      ByteReader segment{bytes_.take(length - 2)};
      if (!bytes_.good()) return std::nullopt;
      if (marker == startOfScan) return scanIsReadable(segment) ? size_ : std::nullopt;
      if (!readSegment(marker, segment)) return std::nullopt;
    }
  }

 private:
  // Passes over fill bytes, and over stray bytes between segments as decoders do.
  std::uint8_t nextMarker() {
    for (;;) {
      while (bytes_.good() && bytes_.byte() != 0xFF) {
      }
      std::uint8_t marker = bytes_.byte();
      while (marker == 0xFF) marker = bytes_.byte();
      if (marker != 0 || !bytes_.good()) return marker;
    }
  }

  static bool standsAlone(std::uint8_t marker) {
    return marker == temporary || (marker >= firstRestart && marker <= lastRestart);
  }

  bool readSegment(std::uint8_t marker, ByteReader& segment) {
    switch (marker) {
      case baselineFrame:
      case extendedFrame:
      case progressiveFrame:
        progressive_ = marker == progressiveFrame;
        return readFrame(segment);
      case quantisationTables:
        return tables_.readQuantisation(segment);
      case huffmanTables:
        return tables_.readHuffman(segment);
      case restartInterval:
        return segment.left() == 2;
      case numberOfLines:
      case comment:
        return true;
      default:
        // Every other frame is lossless, hierarchical or arithmetic, and what is left is reserved.
        return marker >= firstApplication && marker <= lastApplication;
    }
  }

  bool readFrame(ByteReader& segment) {
    const std::uint8_t precision = segment.byte();
    const std::uint32_t height = segment.big16();
    const std::uint32_t width = segment.big16();
    componentCount_ = segment.byte();
    if (size_ || precision != 8) return false;
    if (componentCount_ != 1 && componentCount_ != 3 && componentCount_ != 4) return false;
    for (std::size_t at = 0; at < componentCount_; ++at) {
      const std::uint8_t identifier = segment.byte();
      const std::uint8_t factors = segment.byte();
      components_[at] = {identifier, static_cast<std::uint8_t>(factors >> 4),
                         static_cast<std::uint8_t>(factors & 15), segment.byte()};
      if (!isPlausible(components_[at])) return false;
    }
    size_ = PixelSize{width, height};
    return segment.good() && segment.atEnd();
  }

  static bool isPlausible(const Component& component) {
    const auto isFactor = [](std::uint8_t factor) { return factor >= 1 && factor <= 4; };
    return isFactor(component.horizontal) && isFactor(component.vertical);
  }

  bool scanIsReadable(ByteReader& segment) {
    if (!size_) return false;
    const std::uint8_t count = segment.byte();
    if (count < 1 || count > componentCount_ || segment.left() != count * 2U + 3U) return false;
    ByteReader named{segment};
    segment.take(count * 2U);
    const Band band = readBand(segment, count);
    if (!progressive_) tables_.assumeUsualHuffman();
    unsigned blocks = 0;
    std::array<bool, 4> seen{};
    for (std::uint8_t at = 0; at < count; ++at) {
      const std::size_t which = componentNamed(named.byte());
      if (which == componentCount_ || std::exchange(seen[which], true)) return false;
      const Component& component = components_[which];
      if (!hasTables(component, named.byte(), band)) return false;
      blocks += static_cast<unsigned>(component.horizontal) * component.vertical;
    }
    // Interleaved components share one unit of at most 10 blocks (B.2.3).
    return band.sensible && (count == 1 || blocks <= 10);
  }

  // Which coefficients the scan holds, by G.1.1.1: a progressive one either the DC or some AC.
  Band readBand(ByteReader& segment, std::uint8_t count) const {
    const std::uint8_t first = segment.byte();
    const std::uint8_t last = segment.byte();
    const std::uint8_t bits = segment.byte();
    if (!progressive_) return {true, true, true};
    const unsigned before = bits >> 4;
    const unsigned after = bits & 15;
    const bool ofDc = first == 0;
    const bool range = ofDc ? last == 0 : first <= last && last < 64 && count == 1;
    const bool refines = before != 0;
    const bool sensible = range && after <= 13 && (!refines || after == before - 1);
    return {sensible, ofDc && !refines, !ofDc};
  }

  bool hasTables(const Component& component, std::uint8_t huffmanSlots, Band band) const {
    using enum JpegTables::HuffmanClass;
    return tables_.hasQuantisation(component.quantisation) &&
           (!band.needsDc || tables_.hasHuffman(DC, huffmanSlots >> 4)) &&
           (!band.needsAc || tables_.hasHuffman(AC, huffmanSlots & 15));
  }

  // Its index among the components, or their count when there is none of that name.
  std::size_t componentNamed(std::uint8_t identifier) const {
    std::size_t which = 0;
    while (which < componentCount_ && components_[which].identifier != identifier) ++which;
    return which;
  }

  ByteReader bytes_;
  std::optional<PixelSize> size_;
  std::size_t componentCount_ = 0;
  std::array<Component, 4> components_{};
  JpegTables tables_;
  bool progressive_ = false;
};

}  // namespace

bool beginsAsJpeg(std::string_view body) { return body.starts_with("\xFF\xD8"); }

std::optional<PixelSize> jpegSize(std::string_view body) {
  return HeaderWalk{body.substr(2)}.sizeAtFirstScan();
}

}  // namespace leafund
