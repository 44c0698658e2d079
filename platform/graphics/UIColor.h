#pragma once

#include <array>

namespace leafund {

// Red, green, blue and alpha, each from 0 to 1. Single precision: a card is kept for every showing
// of a row, and four doubles would double what its colour costs.
struct CGColor {
  float red = 0, green = 0, blue = 0, alpha = 0;
  bool operator==(const CGColor&) const = default;
};

struct CGColorSpace {};

inline CGColorSpace CGColorSpaceCreateDeviceRGB() { return {}; }

inline CGColor CGColorCreate(CGColorSpace, const std::array<float, 4>& components) {
  return {components[0], components[1], components[2], components[3]};
}

class UIColor {
 public:
  static UIColor initWithRedGreenBlueAlpha(double red, double green, double blue, double alpha) {
    return UIColor({static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue),
                    static_cast<float>(alpha)});
  }
  static UIColor blackColor() { return UIColor({0, 0, 0, 1}); }
  static UIColor redColor() { return UIColor({1, 0, 0, 1}); }
  static UIColor clearColor() { return UIColor({0, 0, 0, 0}); }

  leafund::CGColor CGColor() const { return color_; }
  bool operator==(const UIColor&) const = default;

 private:
  explicit UIColor(leafund::CGColor color) : color_(color) {}
  leafund::CGColor color_;
};

}  // namespace leafund
