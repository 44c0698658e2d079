#pragma once

#include <QColor>
#include <array>
#include <cstddef>
#include <memory>
#include <string_view>

namespace leafund {

// Brings the colours of a picture to sRGB. Made by a profile, or by nothing, and then it does
// nothing; so it is with a profile that is too large, cannot be understood, or is of other pixels.
// Little CMS, which does the work, is loaded by the first picture that has a profile.
class ColourTransform {
 public:
  // In bytes; those of printers with four inks have two or three million.
  static constexpr std::size_t kMostProfileBytes = 4'000'000;

  // What the pixels say: one number, three, or four of inks, 255 being none of it.
  enum class Pixels { Grey, Colours, Inks };

  // What a picture may tell instead of a profile.
  struct Primaries {
    struct Point {
      double x, y;
    };
    Point white{0.3127, 0.3290};
    std::array<Point, 3> lights{{{0.64, 0.33}, {0.30, 0.60}, {0.15, 0.06}}};
    double gamma = 0;  // light is a number raised to it; by the curve of sRGB when it is 0
  };

  ColourTransform() = default;
  static ColourTransform ofProfile(std::string_view icc, Pixels pixels);
  static ColourTransform ofPrimaries(const Primaries& primaries);

  bool isNone() const { return transform_ == nullptr; }

  // In place: `pixels` are RGB32 or ARGB32, and of inks the four bytes that a JPEG has of each.
  // What is clear of the others stays so.
  void apply(QRgb* pixels, unsigned count) const;

 private:
  ColourTransform(void* colours, Pixels pixels);

  std::shared_ptr<void> transform_;
  Pixels pixels_ = Pixels::Colours;
};

}  // namespace leafund
