#pragma once

#include <QtQmlIntegration/qqmlintegration.h>

#include "interface/qml/bridge/ImageBridge.h"
#include "interface/qml/items/ViewImageItem.h"
#include "platform/qt/PixelWorker.h"

namespace leafund {

// The picture of an image view, cut and framed as its layer says, on a quiet ground where no
// picture has come.
//
// A picture is painted off the main thread, and what was drawn before stays until that is done.
// While the item is out of sight nothing is painted.
class PictureItem : public leafund::ViewImageItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(leafund::ImageBridge* view READ view WRITE setView NOTIFY viewChanged REQUIRED FINAL)
  // Whether a picture is drawn, and not the ground alone.
  Q_PROPERTY(bool hasPicture READ hasPicture NOTIFY hasPictureChanged FINAL)

 public:
  using ViewImageItem::ViewImageItem;

  ImageBridge* view() const { return static_cast<ImageBridge*>(followed()); }
  void setView(ImageBridge* view) { follow(view); }

  // Whether no picture in sight on the window waits to be painted: the next frame draws what the
  // views show.
  static bool areDrawn(const QQuickWindow& window);

  bool hasPicture() const { return drawn_.image != nullptr; }

 signals:
  void hasPictureChanged();

 protected:
  QImage paint(QSize pixels, double scale) override;
  void catchUp() override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;

 private:
  static bool areDrawnIn(const QQuickItem& root);
  bool isDrawn() const;
  FramedPicture wanted(QSize pixels, double scale) const;
  void ask(const FramedPicture& picture);
  void draw(const FramedPicture& picture, QImage image);

  FramedPicture shown_;  // by the view; neither ground nor size
  FramedPicture drawn_;
  QImage drawing_;  // of drawn_, or of the ground before there was anything else
  FramedPicture asked_;
  PixelWorker::Ticket ticket_;
};

}  // namespace leafund
