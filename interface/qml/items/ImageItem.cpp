#include "interface/qml/items/ImageItem.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <memory>
#include <utility>

namespace leafund {

ImageItem::ImageItem(QQuickItem* parent) : QQuickItem(parent) { setFlag(ItemHasContents); }

QSize ImageItem::pixelSize() const {
  const double scale = window() ? window()->effectiveDevicePixelRatio() : 1.0;
  return (imageRect().size() * scale).toSize();
}

void ImageItem::repaint() {
  paintedSize_ = {};
  polish();
}

void ImageItem::updatePolish() {
  const QSize pixels = pixelSize();
  if (window() == nullptr || pixels == paintedSize_) return;
  paintedSize_ = pixels;
  image_ = pixels.isEmpty() ? QImage() : paint(pixels, window()->effectiveDevicePixelRatio());
  newImage_ = true;
  update();
}

void ImageItem::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  if (now.size() == before.size()) return;
  polish();
  update();
}

void ImageItem::itemChange(ItemChange change, const ItemChangeData& data) {
  if (change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged) polish();
  QQuickItem::itemChange(change, data);
}

QSGNode* ImageItem::updatePaintNode(QSGNode* node, UpdatePaintNodeData*) {
  std::unique_ptr<QSGImageNode> imageNode(static_cast<QSGImageNode*>(node));
  if (image_.isNull()) return nullptr;
  if (std::exchange(newImage_, false) || !imageNode) {
    if (!imageNode) {
      imageNode.reset(window()->createImageNode());
      imageNode->setOwnsTexture(true);
    }
    imageNode->setTexture(window()->createTextureFromImage(image_));
  }
  imageNode->setRect(imageRect());
  return imageNode.release();
}

}  // namespace leafund
