#include "platform/graphics/UIImage.h"

#include <utility>

#include "platform/graphics/DrawingContext.h"
#include "platform/graphics/PictureHeader.h"

namespace leafund {

std::shared_ptr<const UIImage> UIImage::initWithData(NSData body) {
  const auto header = body ? readPictureHeader(*body) : std::nullopt;
  if (!header) return nullptr;
  std::shared_ptr<UIImage> image(new UIImage);
  image->body_ = std::move(body);
  image->size_ = {static_cast<double>(header->width), static_cast<double>(header->height)};
  if (header->isTurned()) std::swap(image->size_.width, image->size_.height);
  return image;
}

std::shared_ptr<const UIImage> UIImage::withDrawing(Drawing drawing) {
  std::shared_ptr<UIImage> image(new UIImage);
  image->size_ = drawing.size;
  image->scale_ = drawing.scale;
  image->drawing_ = std::make_unique<const Drawing>(std::move(drawing));
  return image;
}

void UIImage::drawInRect(CGRect rect) const { drawIntoCurrentContext({shared_from_this(), rect}); }

}  // namespace leafund
