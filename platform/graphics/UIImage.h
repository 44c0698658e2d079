#pragma once

#include <memory>
#include <vector>

#include "platform/foundation/NSURLResponse.h"
#include "platform/graphics/Geometry.h"

namespace leafund {

class UIImage;

// What was drawn into a drawing context: pictures in rectangles (points), first one undermost.
struct Drawing {
  struct Stroke {
    std::shared_ptr<const UIImage> image;
    CGRect rect;
  };
  CGSize size;
  bool opaque = false;
  double scale = 1;  // pixels a point
  std::vector<Stroke> strokes;
};

// A recipe, not pixels: a body whose header says it is a picture, or a drawing. The host makes the
// pixels, at the size at which they are drawn and on any thread: it is never changed once made.
class UIImage : public std::enable_shared_from_this<UIImage> {
 public:
  // Null for bytes that are no picture (see PictureHeader.h for the rule).
  static std::shared_ptr<const UIImage> initWithData(NSData body);
  static std::shared_ptr<const UIImage> withDrawing(Drawing drawing);

  // In points; a body's picture has scale 1, so its points are its pixels.
  CGSize size() const { return size_; }
  double scale() const { return scale_; }

  // Draws into the current drawing context, stretched to fill the rectangle; without a context it
  // does nothing.
  void drawInRect(CGRect rect) const;

  // Exactly one of the two is set.
  const NSData& body() const { return body_; }
  const Drawing* drawing() const { return drawing_.get(); }

 private:
  UIImage() = default;

  NSData body_;
  std::unique_ptr<const Drawing> drawing_;
  CGSize size_;
  double scale_ = 1;
};

}  // namespace leafund
