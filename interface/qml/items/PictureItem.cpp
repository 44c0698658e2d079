#include "interface/qml/items/PictureItem.h"

#include <QQuickWindow>
#include <algorithm>
#include <utility>

namespace leafund {

void PictureItem::catchUp() {
  if (view()->picture() == shown_) return;
  shown_ = view()->picture();
  repaint();
}

bool PictureItem::areDrawn(const QQuickWindow& window) { return areDrawnIn(*window.contentItem()); }

bool PictureItem::areDrawnIn(const QQuickItem& root) {
  if (!root.isVisible()) return true;
  const auto* picture = qobject_cast<const PictureItem*>(&root);
  return (picture == nullptr || picture->isDrawn()) &&
         std::ranges::all_of(root.childItems(), [](const auto* item) { return areDrawnIn(*item); });
}

bool PictureItem::isDrawn() const {
  const QSize pixels = pixelSize();
  return pixels.isEmpty() || wanted(pixels, window()->effectiveDevicePixelRatio()) == drawn_;
}

FramedPicture PictureItem::wanted(QSize pixels, double scale) const {
  FramedPicture picture = shown_;
  picture.ground = ground();
  if (shown_.layer.borderColor()) {
    const QColor border = drawnAs(*shown_.layer.borderColor());
    picture.layer.setBorderColor(
        CGColor{border.redF(), border.greenF(), border.blueF(), border.alphaF()});
  }
  picture.pixels = pixels;
  picture.scale = scale;
  return picture;
}

QImage PictureItem::paint(QSize pixels, double scale) {
  const FramedPicture picture = wanted(pixels, scale);
  if (picture == drawn_) {
    ticket_ = {};
  } else if (!picture.image) {
    ticket_ = {};
    draw(picture, painted(picture));
  } else {
    ask(picture);
    if (drawing_.isNull()) drawing_ = painted(picture.withoutImage());
  }
  return drawing_;
}

void PictureItem::ask(const FramedPicture& picture) {
  if (!isVisible() || (ticket_.isOpen() && picture == asked_)) return;
  asked_ = picture;
  ticket_ = PixelWorker::of(*window()).ask(
      [picture](const std::stop_token& stop) { return painted(picture, stop); },
      [this](QImage image) {
        ticket_ = {};
        draw(asked_, image.isNull() ? painted(asked_.withoutImage()) : std::move(image));
        repaint();
      });
}

void PictureItem::draw(const FramedPicture& picture, QImage image) {
  const bool hadPicture = hasPicture();
  drawn_ = picture;
  drawing_ = std::move(image);
  if (hasPicture() != hadPicture) emit hasPictureChanged();
}

void PictureItem::itemChange(ItemChange change, const ItemChangeData& data) {
  if (change == ItemVisibleHasChanged && data.boolValue) repaint();
  const bool isGone = (change == ItemVisibleHasChanged && !data.boolValue) ||
                      (change == ItemSceneChange && data.window == nullptr);
  if (isGone) ticket_ = {};
  ViewImageItem::itemChange(change, data);
}

}  // namespace leafund
