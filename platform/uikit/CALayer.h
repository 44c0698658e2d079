#pragma once

#include <optional>

#include "platform/graphics/Geometry.h"
#include "platform/graphics/UIColor.h"

namespace leafund {

// How a view's rectangle is painted. Lengths in points; opacity from 0 to 1. No colour means
// nothing is painted.
class CALayer {
 public:
  std::optional<CGColor> backgroundColor() const { return backgroundColor_; }
  std::optional<CGColor> borderColor() const { return borderColor_; }
  double borderWidth() const { return borderWidth_; }
  // A radius over half the shorter side makes a circle.
  double cornerRadius() const { return cornerRadius_; }
  bool masksToBounds() const { return masksToBounds_; }
  CGSize shadowOffset() const { return {shadowOffsetX_, shadowOffsetY_}; }
  double shadowOpacity() const { return shadowOpacity_; }

  void setBackgroundColor(std::optional<CGColor> color) { backgroundColor_ = color; }
  void setBorderColor(std::optional<CGColor> color) { borderColor_ = color; }
  void setBorderWidth(double width) { borderWidth_ = static_cast<float>(width); }
  void setCornerRadius(double radius) { cornerRadius_ = static_cast<float>(radius); }
  void setMasksToBounds(bool masks) { masksToBounds_ = masks; }
  void setShadowOffset(CGSize offset) {
    shadowOffsetX_ = static_cast<float>(offset.width);
    shadowOffsetY_ = static_cast<float>(offset.height);
  }
  void setShadowOpacity(double opacity) { shadowOpacity_ = static_cast<float>(opacity); }

  bool operator==(const CALayer&) const = default;

 private:
  // Single precision: every showing of a row keeps a layer for ever.
  std::optional<CGColor> backgroundColor_;
  std::optional<CGColor> borderColor_;
  float borderWidth_ = 0;
  float cornerRadius_ = 0;
  float shadowOffsetX_ = 0;
  float shadowOffsetY_ = -3;
  float shadowOpacity_ = 0;
  bool masksToBounds_ = false;
};

}  // namespace leafund
