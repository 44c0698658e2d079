#pragma once

#include <memory>
#include <utility>

#include "platform/graphics/UIImage.h"
#include "platform/uikit/UIView.h"

namespace leafund {

enum class UIViewContentMode { ScaleToFill, ScaleAspectFill };

class UIImageView : public UIView {
 public:
  ViewKind kind() const override { return ViewKind::Image; }
  const std::shared_ptr<const UIImage>& image() const { return image_; }
  // Null empties the view.
  void setImage(std::shared_ptr<const UIImage> image) {
    image_ = std::move(image);
    changed();
  }

  // Whether a picture of other proportions is stretched or cut to fill the view.
  UIViewContentMode contentMode() const { return contentMode_; }
  void setContentMode(UIViewContentMode mode) { contentMode_ = mode; }

 private:
  std::shared_ptr<const UIImage> image_;
  UIViewContentMode contentMode_ = UIViewContentMode::ScaleToFill;
};

}  // namespace leafund
