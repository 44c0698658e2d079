#pragma once

#include <QtQmlIntegration/qqmlintegration.h>

#include <QImage>
#include <QQuickItem>

namespace leafund {

// An item that is painted once into an image at the screen's scale and then drawn as it is. Round
// corners, borders and shadows come out alike on every renderer that way: the software renderer
// draws no effects, and clips to rectangles only.
//
// The image is made on the main thread, in the polish step before a frame, and again only after
// repaint() or when the size in pixels changes.
class ImageItem : public QQuickItem {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  explicit ImageItem(QQuickItem* parent = nullptr);

 protected:
  // The image for that many pixels, `scale` of them a point. Never called with an empty size.
  virtual QImage paint(QSize pixels, double scale) = 0;
  // Where the image lies: on the item, unless it reaches beyond it.
  virtual QRectF imageRect() const { return boundingRect(); }
  void repaint();
  // The size of that image.
  QSize pixelSize() const;

  void updatePolish() override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData*) override;

 private:
  QImage image_;
  QSize paintedSize_;
  bool newImage_ = false;
};

}  // namespace leafund
