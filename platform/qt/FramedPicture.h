#pragma once

#include <QColor>
#include <QImage>
#include <QSize>
#include <memory>
#include <stop_token>

#include "platform/graphics/UIImage.h"
#include "platform/uikit/CALayer.h"
#include "platform/uikit/UIImageView.h"

namespace leafund {

// A picture as it is to be drawn: cut and framed as its layer says, on a ground that is seen where
// the picture is not.
struct FramedPicture {
  std::shared_ptr<const UIImage> image = nullptr;  // Null for the ground alone.
  UIViewContentMode mode = UIViewContentMode::ScaleToFill;
  CALayer layer = {};
  QColor ground = Qt::transparent;
  QSize pixels = {};  // Not empty when it is painted.
  double scale = 1;   // pixels a point

  FramedPicture withoutImage() const {
    FramedPicture bare = *this;
    bare.image = nullptr;
    return bare;
  }
  bool operator==(const FramedPicture&) const = default;
};

// On any thread. Null for want of memory; what it is after a stop was requested does not matter.
QImage painted(const FramedPicture& picture, const std::stop_token& stop = {});

}  // namespace leafund
