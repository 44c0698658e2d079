#pragma once

#include <QtQmlIntegration/qqmlintegration.h>
#include <QColor>
#include <QPointer>

#include "platform/qt/ImageItem.h"
#include "platform/qt/ViewObject.h"

namespace leafund {

// The picture of an image view, cut and framed as its layer says, on a quiet ground where no
// picture has come.
class PictureItem : public ImageItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(leafund::ViewObject* view READ view WRITE setView NOTIFY viewChanged REQUIRED)
  Q_PROPERTY(QColor ground READ ground WRITE setGround NOTIFY groundChanged)

 public:
  using ImageItem::ImageItem;

  ViewObject* view() const { return view_; }
  void setView(ViewObject* view);
  QColor ground() const { return ground_; }
  void setGround(const QColor& ground);

 signals:
  void viewChanged();
  void groundChanged();

 protected:
  QImage paint(QSize pixels, double scale) override;

 private:
  void catchUp();

  QPointer<ViewObject> view_;
  QColor ground_ = Qt::transparent;
  std::shared_ptr<const UIImage> image_;
  CALayer layer_;
};

}  // namespace leafund
